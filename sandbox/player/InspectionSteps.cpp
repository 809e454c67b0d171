#include <algorithm>
#include <cstdlib>
#include <cwctype>
#include <map>

#include <windows.h>

#include <commctrl.h>
#include <oleacc.h>

#include "platform/Owners.h"
#include "player/Run.h"
#include "player/Screen.h"
#include "player/Script.h"

namespace corvane::player
{
namespace
{

std::optional<wchar_t> AccessKeyOf(const std::wstring& text)
{
    std::optional<wchar_t> key;
    for (std::size_t at = 0; (at = text.find(L'&', at)) != std::wstring::npos && at + 1 < text.size(); at += 2)
        if (text[at + 1] != L'&') key = static_cast<wchar_t>(std::towlower(text[at + 1]));
    return key;
}

// Wine's accessible objects take the first "&" of a text for a mark and leave the others as they are.
std::wstring WithoutPairs(std::wstring name)
{
    for (std::size_t at = name.find(L"&&"); at != std::wstring::npos; at = name.find(L"&&", at + 1))
        name.erase(at, 1);
    return name;
}

// The name that a screen reader gets for the control. These two are for the user interface's thread.
std::wstring SpokenName(HWND control)
{
    ComPtr<IAccessible> accessible;
    if (FAILED(::AccessibleObjectFromWindow(control, static_cast<DWORD>(OBJID_CLIENT),
                                            IID_PPV_ARGS(accessible.GetAddressOf()))))
        return {};
    VARIANT self{};
    self.vt = VT_I4;
    Bstr name;
    return accessible->get_accName(self, name.Put()) == S_OK ? WithoutPairs(name.Text()) : std::wstring{};
}

// What would stop a user without a mouse or without sight: two controls with one access key, or an input without a
// name. Empty when all is well.
std::wstring ReadingProblem(HWND form)
{
    std::map<wchar_t, std::wstring> owners;
    std::wstring nameless;
    for (HWND child = ::GetWindow(form, GW_CHILD); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT)) {
        if (!::IsWindowVisible(child)) continue;
        const std::wstring name = ControlNameOf(::GetDlgCtrlID(child));
        const bool takesKeys = (::GetWindowLongPtrW(child, GWL_STYLE) & WS_TABSTOP) != 0;
        if (takesKeys && SpokenName(child).empty()) nameless = name;
        if (!IsClass(child, WC_STATICW) && !IsClass(child, WC_BUTTONW)) continue;
        const auto key = AccessKeyOf(WindowText(child).value_or(L""));
        if (!key) continue;
        const auto [owner, isNew] = owners.try_emplace(*key, name);
        if (!isNew) return owner->second + L" and " + name + L" have the access key " + *key;
    }
    return nameless.empty() ? L"" : nameless + L" has no name for screen readers";
}

// The middle of a stretch of that length over the owner's, kept between the screen's edges.
LONG MiddleOver(LONG length, LONG start, LONG end, LONG least, LONG most)
{
    return std::max(least, std::min((start + end - length) / 2, most - length));
}

std::wstring PlaceProblem(HWND window, HWND owner)
{
    MONITORINFO monitor{};
    monitor.cbSize = sizeof monitor;
    ::GetMonitorInfoW(::MonitorFromWindow(owner, MONITOR_DEFAULTTONEAREST), &monitor);
    const RECT& work = monitor.rcWork;
    RECT own{};
    RECT under{};
    ::GetWindowRect(window, &own);
    ::GetWindowRect(owner, &under);
    const LONG left = MiddleOver(own.right - own.left, under.left, under.right, work.left, work.right);
    const LONG top = MiddleOver(own.bottom - own.top, under.top, under.bottom, work.top, work.bottom);
    const bool isMiddle = std::abs(own.left - left) <= 1 && std::abs(own.top - top) <= 1;
    return isMiddle ? L"" : L"it is not in the middle of its owner";
}

void LayoutFits(Stage&, Run& run, const Step& step)
{
    run.WaitFor([&, name = step.At(0)] {
        const HWND window = run.NamedWindow(name);
        return window == nullptr ? L"no window " + name : FitProblem(window);
    });
}

void Readable(Stage&, Run& run, const Step& step)
{
    run.WaitFor([&, name = step.At(0)] {
        const HWND form = FindForm(name);
        return form == nullptr ? L"no window " + name : run.OnUi([=] { return ReadingProblem(form); });
    });
}

void Spoken(Stage&, Run& run, const Step& step)
{
    run.WaitOn(step.At(0), [&](HWND control) {
        const std::wstring name = run.OnUi([=] { return SpokenName(control); });
        return Unless(name == step.At(1), L"its name is \"" + name + L"\"");
    });
}

// The title bar is the form's. Wine may tell of a move once more after the next one, and its tooltips then wait for the
// mouse to come again: as a hand would, it leaves the form and returns.
void Hover(Stage&, Run& run, const Step& step)
{
    constexpr int kLooks = 12; // for something over a second
    const HWND form = run.Form();
    const HWND control = step.At(0) == L"caption" ? form : run.Control(step.At(0));
    if (control == nullptr) Fail(L"no " + step.At(0) + L" is there");
    const auto finding = [&] {
        const std::wstring tip = ShownTip(form);
        return Unless(tip == step.Lines(1), L"the tooltip is \"" + tip + L"\"");
    };
    if (step.At(1).empty()) {
        PointAt(form, control);
        ::Sleep(2 * ::GetDoubleClickTime()); // a tooltip comes after a double click's time
        if (const Finding shown = finding(); !shown.empty()) Fail(shown);
        return;
    }
    run.WaitFor([&, look = 0]() mutable {
        if (look % kLooks == 0) PointAt(form, control);
        if (++look % kLooks == 0) ::SetCursorPos(0, 0);
        return finding();
    });
}

void Over(Stage&, Run& run, const Step& step)
{
    run.WaitFor([&]() -> Finding {
        const HWND window = run.NamedWindow(step.At(0));
        const HWND owner = run.NamedWindow(step.At(1));
        if (window == nullptr || owner == nullptr) return L"no window " + step.At(window == nullptr ? 0 : 1);
        if (::GetWindow(window, GW_OWNER) != owner) return L"it belongs to another window";
        if (::IsWindowEnabled(owner)) return L"its owner is not disabled";
        if (::GetForegroundWindow() != window) return L"it is not in the foreground";
        return step.At(0) == L"message" ? Finding{} : PlaceProblem(window, owner);
    });
}

constexpr StepRow kSteps[] = {
    {"fits", 1, 1, &LayoutFits}, {"readable", 1, 1, &Readable}, {"spoken", 2, 2, &Spoken},
    {"hover", 2, kAny, &Hover},  {"over", 2, 2, &Over},
};

} // namespace

std::span<const StepRow> InspectionSteps() { return kSteps; }

} // namespace corvane::player
