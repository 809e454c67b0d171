// The add-in's entries in the menus of hosts without a ribbon.
#include "addin/CAddInMenus.h"

#include "platform/Procedure.h"
#include "support/CTraceLog.h"
#include "support/Conversions.h"

namespace corvane
{

// One of the add-in's buttons: its tag, and the command that its click runs under a trace name.
struct MenuButton
{
    const wchar_t* tag;
    std::wstring caption;
    const wchar_t* caller;
    void (*run)(CAddInMenus& menus, std::wstring_view caller);
};

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
constexpr const wchar_t* kHelpTag = L"KRXMSOHelp";
constexpr const wchar_t* kAboutTag = L"KRXAboutMSO";

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

void CAddInMenus::SetUpButton(const LateBound& control, const MenuButton& button)
{
    m_clicks.emplace_back(control.Get(), kButtonEvents,
                          [this, caller = button.caller, run = button.run](DISPID member, const DISPPARAMS&) {
                              if (member == kClick) run(*this, caller);
                          });
    Present(control);
    control.Put(L"Style", kButtonCaption);
    control.Put(L"Caption", EscapeAmpersands(button.caption));
    control.Put(L"Tag", button.tag);
}

void CAddInMenus::CreateMenus(const LateBound& oCommandBar)
{
    const ProcedureScope scope{L"CAddInMenus.CreateMenus"};
    TraceVariable(L"oCommandBar.Name", oCommandBar.Text(L"Name"));
    DeleteMenus(oCommandBar); // what a crashed run left behind

    const LateBound file = MenuControls(oCommandBar, kFileMenu, kStrictly);
    const std::int32_t savePosition = PositionBehind(file, kSaveAs, file.Number(L"Count"));
    const LateBound popup{file.Call(L"Add", kControlPopup, kAnyId, kSavePopupTag, savePosition, true).Object()};
    Present(popup);
    popup.Put(L"Tag", kSavePopupTag);
    popup.Put(L"Caption", EscapeAmpersands(m_captions.saveToCorvane));

    const LateBound saves = popup.Object(L"Controls");
    const MenuButton buttons[] = {
        {L"KRXSaveAssignement", m_captions.saveAsDelivActMenu, L"CAddInMenus.cbrSaveAsAssignment_Click",
         [](CAddInMenus& menus, std::wstring_view caller) { menus.SaveAssignmentClickHelper(caller); }},
        {L"KRXSaveRelatedDoc", L"Save as Related Document...", L"CAddInMenus.cbrSaveAsRelatedDoc_Click",
         [](CAddInMenus& menus, std::wstring_view caller) { menus.SaveRelatedDocClickHelper(caller); }},
        {L"KRXSaveGateDoc", m_captions.saveAsGateDocMenu, L"CAddInMenus.cbrSaveAsGateDoc_Click",
         [](CAddInMenus& menus, std::wstring_view caller) { menus.SaveGateDocClickHelper(caller); }},
    };
    for (const MenuButton& button : buttons)
        SetUpButton(LateBound{saves.Call(L"Add", kControlButton).Object()}, button);

    const LateBound help = MenuControls(oCommandBar, kHelpMenu, kStrictly);
    const auto addToHelp = [&](const wchar_t* tag, Variant before) {
        return LateBound{help.Call(L"Add", kControlButton, Variant::Missing(), tag, std::move(before), true).Object()};
    };
    SetUpButton(addToHelp(kHelpTag, PositionBehind(help, kHelpAnchor, kDefaultHelpPosition)),
                {kHelpTag, L"Corvane for MS Office Help", L"CAddInMenus.cbrHelpTopics_Click",
                 [](CAddInMenus& menus, std::wstring_view caller) { menus.ShowHelp(caller); }});
    SetUpButton(addToHelp(kAboutTag, Variant::Missing()),
                {kAboutTag, L"About Corvane for MS Office", L"CAddInMenus.cbrHelpAbout_Click",
                 [](CAddInMenus& menus, std::wstring_view caller) { menus.ShowAbout(caller); }});
}

void CAddInMenus::DeleteMenus(const LateBound& oCommandBar) noexcept
{
    const ProcedureScope scope{L"CAddInMenus.DeleteMenus"};
    Ignoring([&] { TraceVariable(L"oCommandBar.Name", oCommandBar.Text(L"Name")); });
    m_clicks.clear();
    RemoveTag(oCommandBar, kFileMenu, kSavePopupTag);
    RemoveTag(oCommandBar, kHelpMenu, kHelpTag);
    RemoveTag(oCommandBar, kHelpMenu, kAboutTag);
}

} // namespace corvane
