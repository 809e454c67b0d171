#pragma once

#include <functional>
#include <string>
#include <vector>

#include "app/Host.h"
#include "objects/CommandBars.h"
#include "ui/Gdi.h"

namespace host
{

// Turns menus of the host and its add-ins into window menus and remembers what each entry does.
class MenuBuilder
{
public:
    explicit MenuBuilder(Host& host) : m_host{host} {}

    // The menus of the command bar model; for version 11 and earlier.
    void FillFromBar(HMENU menu, CommandBarObject& bar);

    // The children of a ribbon menu.
    void FillFromRibbon(HMENU menu, const AddIn& addIn, const std::vector<RibbonControl>& controls);

    // The Office button's menu: the host's commands with the add-ins' entries after "Save As".
    void FillOfficeMenu(HMENU menu);

    // Does what the chosen entry stands for; an id of no entry does nothing.
    void Perform(UINT id);

    void Clear() { m_actions.clear(); }

private:
    void Append(HMENU menu, const std::wstring& label, bool enabled, std::function<void()> action);
    void AppendPopup(HMENU menu, HMENU popup, const std::wstring& label);
    [[nodiscard]] std::function<void()> ActionOf(BarControlObject& entry);

    Host& m_host;
    std::vector<std::function<void()>> m_actions;
};

} // namespace host
