#include <algorithm>
#include <stdexcept>

#include "automation/Text.h"
#include "objects/CommandBars.h"
#include "objects/DocumentObject.h"
#include "player/Player.h"
#include "player/Screen.h"

namespace host
{
namespace
{

std::wstring Quoted(const std::optional<std::wstring>& text)
{
    return text ? L"\"" + *text + L"\"" : L"a window that does not answer";
}

struct StateName
{
    std::string_view name;
    bool (*holds)(HWND form, HWND control, HWND focus);
};

bool IsChecked(HWND control) { return Ask(control, BM_GETCHECK).value_or(BST_INDETERMINATE) == BST_CHECKED; }

// Whether all of the control is in what its form shows of itself.
bool IsInView(HWND form, HWND control)
{
    RECT view{};
    RECT place{};
    RECT common{};
    ::GetClientRect(form, &view);
    ::GetWindowRect(control, &place);
    ::MapWindowPoints(nullptr, form, reinterpret_cast<POINT*>(&place), 2);
    return ::IntersectRect(&common, &view, &place) && ::EqualRect(&common, &place);
}

// Whether a form is to be seen and none of its buttons, lists and boxes can be used. A read-only box only shows text.
bool IsLocked(HWND form)
{
    if (!::IsWindowVisible(form)) return false;
    for (HWND child = ::GetWindow(form, GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT)) {
        const LONG_PTR style = ::GetWindowLongPtrW(child, GWL_STYLE);
        const bool shows = IsClass(child, WC_EDITW) && (style & ES_READONLY) != 0;
        if ((style & WS_TABSTOP) != 0 && !shows && ::IsWindowVisible(child) && ::IsWindowEnabled(child)) return false;
    }
    return true;
}

constexpr StateName kStates[] = {
    {"enabled", [](HWND, HWND control, HWND) { return ::IsWindowEnabled(control) != FALSE; }},
    {"disabled", [](HWND, HWND control, HWND) { return ::IsWindowEnabled(control) == FALSE; }},
    {"visible", [](HWND, HWND control, HWND) { return ::IsWindowVisible(control) != FALSE; }},
    {"hidden", [](HWND, HWND control, HWND) { return ::IsWindowVisible(control) == FALSE; }},
    {"checked", [](HWND, HWND control, HWND) { return IsChecked(control); }},
    {"unchecked", [](HWND, HWND control, HWND) { return !IsChecked(control); }},
    {"focused",
     [](HWND, HWND control, HWND focus) { return focus && (focus == control || ::IsChild(control, focus)); }},
    {"locked", [](HWND form, HWND, HWND) { return IsLocked(form); }},
    {"inview", [](HWND form, HWND control, HWND) { return IsInView(form, control); }},
    {"default", [](HWND form, HWND control, HWND) { return IsDefaultButton(form, control); }},
    {"notdefault", [](HWND form, HWND control, HWND) { return !IsDefaultButton(form, control); }},
};

// True for the first word, false for the second; any other is a slip of the scenario.
bool OneOf(const std::string& word, std::string_view yes, std::string_view no)
{
    if (word != yes && word != no) throw std::runtime_error{"no state is named " + word};
    return word == yes;
}

// The captions of a menu's entries as lines; nullopt when there is no such menu. The path is that of a menu, as "File".
std::optional<std::wstring> MenuEntries(CommandBarObject& bar, const std::string& path)
{
    CommandBarObject* menu = &bar;
    for (const std::string& name : SplitTreePath(path)) {
        const auto& entries = menu->Entries();
        const auto found = std::ranges::find_if(
            entries, [&](const auto& entry) { return entry->Menu() && WithoutMark(entry->Caption()) == Widen(name); });
        if (found == entries.end()) return std::nullopt;
        menu = (*found)->Menu();
    }
    std::wstring captions;
    for (const auto& entry : menu->Entries())
        captions += (captions.empty() ? L"" : L"\r\n") + entry->Caption();
    return captions;
}

} // namespace

Player::Finding Player::StateFinding(const std::string& control, const std::string& state)
{
    const HWND window = Control(control);
    if (!window) return L"no " + Widen(control) + L" in " + m_form;
    for (const StateName& row : kStates) {
        if (row.name != state) continue;
        return row.holds(Form(), window, FocusOf(m_host.Queue().ThreadId())) ? Finding{} : L"it is not " + Widen(state);
    }
    throw std::runtime_error{"no state is named " + state};
}

void Player::Expect(const Step& step)
{
    const std::string what = step.At(0);
    if (what == "addin") return ExpectAddIn(step);
    if (what == "host") return ExpectHost(step);
    if (what == "document") return ExpectDocument(step);
    if (what == "command") return ExpectCommand(step);
    if (what == "icon") return ExpectIcon(step);
    if (what == "menu") return ExpectMenu(step);
    if (what == "closebox") return ExpectCloseBox(step);
    if (what == "hourglass") return ExpectHourglass(step);
    if (!step.words[1].quoted) return WaitFor([&] { return StateFinding(what, step.At(1)); });

    const std::wstring wanted = Widen(step.Lines(1));
    WaitFor([&]() -> Finding {
        const HWND window = what == "caption" ? Form() : Control(what);
        if (!window) return L"no " + Widen(what) + L" in " + m_form;
        const auto text = what == "caption" ? WindowText(window) : ControlText(window);
        return text == wanted ? Finding{} : L"it is " + Quoted(text);
    });
}

void Player::ExpectCommand(const Step& step)
{
    const bool wanted = OneOf(step.At(2), "present", "absent");
    WaitFor([&] {
        bool there = false;
        OnUi([&] { there = m_host.HasCommand(step.At(1)); });
        return there == wanted ? Finding{} : std::wstring{there ? L"it is there" : L"it is not there"};
    });
}

void Player::ExpectMenu(const Step& step)
{
    WaitFor([&, wanted = Widen(step.Lines(2))] {
        std::optional<std::wstring> entries;
        OnUi([&] { entries = MenuEntries(m_host.Documents().CommandBars().MenuBar(), step.At(1)); });
        return entries == wanted ? Finding{}
               : entries         ? L"it holds " + Quoted(entries)
                                 : Finding{L"there is no such menu"};
    });
}

void Player::ExpectCloseBox(const Step& step)
{
    const bool wanted = OneOf(step.At(1), "enabled", "disabled");
    WaitFor([&] {
        const UINT state = ::GetMenuState(::GetSystemMenu(Form(), FALSE), SC_CLOSE, MF_BYCOMMAND);
        const bool enabled = state != static_cast<UINT>(-1) && !(state & (MF_GRAYED | MF_DISABLED));
        return enabled == wanted ? Finding{} : Finding{L"it is not " + Widen(step.At(1))};
    });
}

void Player::ExpectHourglass(const Step& step)
{
    const bool wanted = OneOf(step.At(1), "shown", "hidden");
    WaitFor([&] {
        bool shown = false;
        OnUi([&] {
            ::SendMessageW(Form(), WM_SETCURSOR, reinterpret_cast<WPARAM>(Form()), MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
            shown = ::GetCursor() == ::LoadCursorW(nullptr, IDC_WAIT);
        });
        return shown == wanted ? Finding{} : Finding{L"it is not " + Widen(step.At(1))};
    });
}

void Player::ExpectDocument(const Step& step)
{
    WaitFor([&, wanted = Widen(step.At(1))] {
        std::wstring name = L"no presentation";
        OnUi([&] {
            if (DocumentObject* active = m_host.Documents().Active()) name = active->File().Name();
        });
        return name == wanted ? Finding{} : L"it is " + name;
    });
}

// A failed add-in is a fault that ends a scenario, unless its first step on the add-in expects it.
void Player::ExpectAddIn(const Step& step)
{
    m_faultsExpected = step.At(1) == "failed";
    WaitUntilLoaded();
    std::string state = "absent";
    OnUi([&] {
        for (const auto& addIn : m_host.AddIns()) {
            if (addIn->State() == AddInState::Connected) state = "loaded";
            if (addIn->State() == AddInState::Failed) state = "failed";
        }
    });
    if (state != step.At(1)) throw std::runtime_error{"the add-in is " + state};
    static_cast<void>(m_host.TakeFaults()); // they are what was expected
    m_faultsExpected = false;
}

} // namespace host
