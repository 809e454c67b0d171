// The add-in's entries in the menus of hosts without a ribbon.
#pragma once

#include "addin/Commands.h"
#include "platform/EventSubscription.h"
#include "platform/LateBound.h"

#include <functional>
#include <vector>

namespace corvane
{

// Puts the commands into a command bar, hears their clicks and takes them out again.
class CommandBarMenus
{
public:
    using Clicked = std::function<void(const Command& command)>;
    // The clicked command is handed on; the function must not throw.
    explicit CommandBarMenus(Clicked clicked) : m_clicked{std::move(clicked)} {}

    // Throws Error and leaves what it has added.
    void Create(const LateBound& bar, const UICaptions& captions);
    // Passes over everything that fails.
    void Delete(const LateBound& bar) noexcept;

private:
    void AddSaves(const LateBound& bar, const UICaptions& captions);
    void AddHelp(const LateBound& bar, const UICaptions& captions);
    void SetUpButton(const LateBound& control, const Command& command, const UICaptions& captions);

    Clicked m_clicked;
    std::vector<EventSubscription> m_clicks;
};

} // namespace corvane
