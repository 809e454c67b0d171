// Menus of the host's window.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/Owners.h"
#include "ui/Desk.h"

namespace host
{

// Of a menu that no window has taken over.
using UniqueMenu = corvane::Unique<HMENU, ::DestroyMenu>;

// Turns menus of the host and its add-ins into window menus and remembers what each entry does.
class MenuBuilder
{
public:
    explicit MenuBuilder(Desk& desk) : m_desk{desk} {}

    // The menus of the command bar model; for version 11 and earlier.
    void FillFromBar(HMENU menu, CommandBarObject& bar);

    // The children of a ribbon menu.
    void FillFromRibbon(HMENU menu, const ShownRibbon& shown, const std::vector<RibbonControl>& controls);

    // The Office button's menu: the host's commands with the add-ins' entries after "Save As".
    void FillOfficeMenu(HMENU menu);

    // Does what the chosen entry stands for; an id of no entry does nothing.
    void Perform(UINT id);

    void Clear() { m_actions.clear(); }

private:
    void Append(HMENU menu, const std::wstring& label, bool enabled, std::function<void()> action);
    void AppendPopup(HMENU menu, HMENU popup, const std::wstring& label);
    [[nodiscard]] std::function<void()> ActionOf(BarControlObject& entry);

    Desk& m_desk;
    std::vector<std::function<void()>> m_actions;
};

} // namespace host
