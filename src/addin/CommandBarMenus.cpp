#include "addin/CommandBarMenus.h"

#include "platform/Procedure.h"
#include "support/Conversions.h"

namespace corvane
{
namespace
{

// Built-in controls by their ids in the host.
constexpr std::int32_t kFileMenu = 30002;
constexpr std::int32_t kHelpMenu = 30010;
constexpr std::int32_t kSaveAs = 748;
constexpr std::int32_t kHelpAnchor = 984;
constexpr std::int32_t kDefaultHelpPosition = 2;

constexpr std::int32_t kControlButton = 1; // msoControlButton
constexpr std::int32_t kControlPopup = 10; // msoControlPopup
constexpr std::int32_t kButtonCaption = 1; // msoButtonCaption
constexpr std::int32_t kAnyId = 1;

constexpr const wchar_t* kSavePopupTag = L"KRXSaveToCorvane";

// _CommandBarButtonEvents and its Click.
constexpr IID kButtonEvents = {0x000C0351, 0x0000, 0x0000, {0xC0, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x46}};
constexpr DISPID kClick = 1;

// How a statement runs that may fail: its error goes on to the caller, or is passed over.
constexpr auto kStrictly = [](auto&& statement) { statement(); };
constexpr auto kLeniently = [](auto&& statement) { Ignoring(statement); };

// The controls of a menu of the bar, found by the menu's id; the last match counts. Empty when there is none.
template<class Run>
LateBound MenuControls(const LateBound& bar, std::int32_t menuId, Run run)
{
    const LateBound controls = bar.Object(L"Controls");
    LateBound menu;
    const std::int32_t count = controls.Number(L"Count");
    for (std::int32_t index = 1; index <= count; ++index)
        run([&] {
            const LateBound control = controls.Object(L"Item", index);
            if (control.Number(L"Id") == menuId) menu = control;
        });
    return menu.Object(L"Controls");
}

// The position behind the last control of an id, or the fallback when there is none.
std::int32_t PositionBehind(const LateBound& controls, std::int32_t id, std::int32_t fallback)
{
    std::int32_t position = fallback;
    const std::int32_t count = controls.Number(L"Count");
    for (std::int32_t index = 1; index <= count; ++index) {
        const LateBound control = controls.Object(L"Item", index);
        if (control.Number(L"Id") == id) position = control.Number(L"Index") + 1;
    }
    return position;
}

// The first control with exactly this tag; empty when there is none.
LateBound FindTag(const LateBound& controls, std::wstring_view tag)
{
    const std::int32_t count = controls.Number(L"Count");
    for (std::int32_t index = 1; index <= count; ++index) {
        LateBound control = controls.Object(L"Item", index);
        if (control.Text(L"Tag") == tag) return control;
    }
    return {};
}

// Hides, disables and deletes what carries a tag; every statement that fails is passed over.
void RemoveTag(const LateBound& bar, std::int32_t menuId, std::wstring_view tag) noexcept
{
    LateBound control;
    Ignoring([&] { control = FindTag(MenuControls(bar, menuId, kLeniently), tag); });
    if (!control) return;
    Ignoring([&] { control.Put(L"Visible", false); });
    Ignoring([&] { control.Put(L"Enabled", false); });
    Ignoring([&] { control.Call(L"Delete"); });
}

void Present(const LateBound& control)
{
    control.Put(L"Enabled", true);
    control.Put(L"Visible", true);
}

} // namespace

void CommandBarMenus::SetUpButton(const LateBound& control, const Command& command, const UICaptions& captions)
{
    m_clicks.emplace_back(control.Get(), kButtonEvents, [this, &command](DISPID member, const DISPPARAMS&) {
        if (member == kClick) m_clicked(command);
    });
    Present(control);
    control.Put(L"Style", kButtonCaption);
    control.Put(L"Caption", EscapeAmpersands(command.menuText.In(captions)));
    control.Put(L"Tag", command.tag);
}

void CommandBarMenus::Create(const LateBound& bar, const UICaptions& captions)
{
    AddSaves(bar, captions);
    AddHelp(bar, captions);
}

void CommandBarMenus::AddSaves(const LateBound& bar, const UICaptions& captions)
{
    const LateBound file = MenuControls(bar, kFileMenu, kStrictly);
    const std::int32_t position = PositionBehind(file, kSaveAs, file.Number(L"Count"));
    const LateBound popup{file.Call(L"Add", kControlPopup, kAnyId, kSavePopupTag, position, true).Object()};
    Present(popup);
    popup.Put(L"Tag", kSavePopupTag);
    popup.Put(L"Caption", EscapeAmpersands(captions.saveToCorvane));
    const LateBound saves = popup.Object(L"Controls");
    for (const Command& command : SaveCommands())
        SetUpButton(LateBound{saves.Call(L"Add", kControlButton).Object()}, command, captions);
}

void CommandBarMenus::AddHelp(const LateBound& bar, const UICaptions& captions)
{
    const LateBound help = MenuControls(bar, kHelpMenu, kStrictly);
    // The first goes behind the host's own help, the others to the end.
    Variant before = PositionBehind(help, kHelpAnchor, kDefaultHelpPosition);
    for (const Command& command : HelpCommands()) {
        const Variant added = help.Call(L"Add", kControlButton, Variant::Missing(), command.tag,
                                        std::exchange(before, Variant::Missing()), true);
        SetUpButton(LateBound{added.Object()}, command, captions);
    }
}

void CommandBarMenus::Delete(const LateBound& bar) noexcept
{
    m_clicks.clear();
    RemoveTag(bar, kFileMenu, kSavePopupTag);
    for (const Command& command : HelpCommands())
        RemoveTag(bar, kHelpMenu, command.tag);
}

} // namespace corvane
