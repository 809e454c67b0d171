#include <algorithm>

#include <windows.h>

#include <commctrl.h>

#include "player/Run.h"
#include "player/Screen.h"
#include "player/Script.h"

namespace corvane::player
{
namespace
{

std::wstring Quoted(const std::optional<std::wstring>& text)
{
    return text ? L"\"" + *text + L"\"" : L"a window that does not answer";
}

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
    for (HWND child = ::GetWindow(form, GW_CHILD); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT)) {
        const LONG_PTR style = ::GetWindowLongPtrW(child, GWL_STYLE);
        const bool shows = IsClass(child, WC_EDITW) && (style & ES_READONLY) != 0;
        if ((style & WS_TABSTOP) != 0 && !shows && ::IsWindowVisible(child) && ::IsWindowEnabled(child)) return false;
    }
    return true;
}

struct StateRow
{
    std::wstring_view name;
    std::wstring_view opposite; // empty: it has no name
    bool (*holds)(const Run& run, HWND control);
};

constexpr StateRow kStates[] = {
    {L"enabled", L"disabled", [](const Run&, HWND control) { return ::IsWindowEnabled(control) != FALSE; }},
    {L"visible", L"hidden", [](const Run&, HWND control) { return ::IsWindowVisible(control) != FALSE; }},
    {L"checked", L"unchecked", [](const Run&, HWND control) { return IsChecked(control); }},
    {L"focused", {}, [](const Run& run, HWND control) { return run.HasFocus(control); }},
    {L"locked", {}, [](const Run& run, HWND) { return IsLocked(run.Form()); }},
    {L"inview", {}, [](const Run& run, HWND control) { return IsInView(run.Form(), control); }},
    {L"default", L"notdefault", [](const Run& run, HWND control) { return IsDefaultButton(run.Form(), control); }},
};

void ExpectState(Run& run, const std::wstring& name, const std::wstring& state)
{
    const auto isNamed = [&](const StateRow& row) { return row.name == state || row.opposite == state; };
    const auto row = std::ranges::find_if(kStates, isNamed);
    if (row == std::end(kStates)) Fail(L"no state is named " + state);
    run.WaitOn(name, [&](HWND control) {
        return Unless(row->holds(run, control) == (row->name == state), L"it is not " + state);
    });
}

// Waits until this text of the control is the wanted one.
template<class TextOf>
void ExpectText(Run& run, const std::wstring& control, const std::wstring& wanted, const TextOf& textOf)
{
    run.WaitOn(control, [&](HWND window) {
        const std::optional<std::wstring> text = textOf(window);
        return Unless(text == wanted, L"it is " + Quoted(text));
    });
}

// A control in a state, by one word, or with a text, by quoted ones.
void ExpectControl(Stage&, Run& run, const Step& step)
{
    if (!step.words[1].quoted) return ExpectState(run, step.At(0), step.At(1));
    ExpectText(run, step.At(0), step.Lines(1), &ControlText);
}

// A part of the form's status bar, by its number from 1.
void ExpectPart(Stage&, Run& run, const Step& step)
{
    ExpectText(run, L"form", step.At(1), [&](HWND form) {
        return PartText(::FindWindowExW(form, nullptr, STATUSCLASSNAMEW, nullptr), std::stoi(step.At(0)) - 1);
    });
}

void ExpectCaption(Stage&, Run& run, const Step& step) { ExpectText(run, L"form", step.Lines(0), &WindowText); }

// Waits until what can be so or not is as the step's word says; any word but these two is a slip of the scenario.
void ExpectEither(Run& run, const std::wstring& word, std::wstring_view yes, std::wstring_view no,
                  const std::function<bool()>& isSo)
{
    if (word != yes && word != no) Fail(L"no state is named " + word);
    run.WaitFor([&] { return Unless(isSo() == (word == yes), L"it is not " + word); });
}

void ExpectCommand(Stage& stage, Run& run, const Step& step)
{
    ExpectEither(run, step.At(1), L"present", L"absent",
                 [&] { return run.OnUi([&] { return stage.HasCommand(step.At(0)); }); });
}

void ExpectCloseBox(Stage&, Run& run, const Step& step)
{
    ExpectEither(run, step.At(0), L"enabled", L"disabled", [&] {
        const UINT state = ::GetMenuState(::GetSystemMenu(run.Form(), FALSE), SC_CLOSE, MF_BYCOMMAND);
        return state != static_cast<UINT>(-1) && (state & (MF_GRAYED | MF_DISABLED)) == 0;
    });
}

void ExpectHourglass(Stage&, Run& run, const Step& step)
{
    ExpectEither(run, step.At(0), L"shown", L"hidden", [&] {
        return run.OnUi([form = run.Form()] {
            ::SendMessageW(form, WM_SETCURSOR, reinterpret_cast<WPARAM>(form), MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
            return ::GetCursor() == ::LoadCursorW(nullptr, IDC_WAIT);
        });
    });
}

void ExpectMenu(Stage& stage, Run& run, const Step& step)
{
    run.WaitFor([&, path = SplitTreePath(step.At(0))] {
        const auto entries = run.OnUi([&] { return stage.MenuEntries(path); });
        if (!entries) return Finding{L"there is no such menu"};
        return Unless(*entries == step.Lines(1), L"it holds " + Quoted(entries));
    });
}

void ExpectDocument(Stage& stage, Run& run, const Step& step)
{
    run.WaitFor([&] {
        const auto name = run.OnUi([&] { return stage.ActiveName(); });
        return Unless(name == step.At(0), L"it is " + name.value_or(L"no presentation"));
    });
}

void ExpectHost(Stage& stage, Run& run, const Step& step)
{
    const bool disabled = step.At(0) == L"disabled";
    if (!disabled && step.At(0) != L"focused") Fail(L"the host can be expected to be focused or disabled");
    run.WaitFor([&, window = stage.Window()] {
        if (disabled) return Unless(!::IsWindowEnabled(window), L"its window is in use");
        const bool isFocused = ::GetAncestor(run.FocusedWindow(), GA_ROOT) == window;
        return Unless(isFocused && ::GetForegroundWindow() == window, L"another window has the keyboard");
    });
}

// A failed add-in is a fault that ends a scenario, unless its first step on the add-in expects it.
void ExpectAddIn(Stage& stage, Run& run, const Step& step)
{
    run.faultsExpected = step.At(0) == L"failed";
    run.AwaitReady();
    const std::wstring state = run.OnUi([&] { return stage.AddInState(); });
    if (state != step.At(0)) Fail(L"the add-in is " + state);
    static_cast<void>(stage.TakeFaults()); // they are what was expected
    run.faultsExpected = false;
}

constexpr StepRow kSteps[] = {
    {"expect", 2, kAny, &ExpectControl},          {"expect caption", 1, kAny, &ExpectCaption},
    {"expect command", 2, 2, &ExpectCommand},     {"expect closebox", 1, 1, &ExpectCloseBox},
    {"expect hourglass", 1, 1, &ExpectHourglass}, {"expect menu", 2, kAny, &ExpectMenu},
    {"expect document", 1, 1, &ExpectDocument},   {"expect host", 1, 1, &ExpectHost},
    {"expect addin", 1, 1, &ExpectAddIn},         {"expect part", 2, 2, &ExpectPart},
};

} // namespace

std::span<const StepRow> Expectations() { return kSteps; }

} // namespace corvane::player
