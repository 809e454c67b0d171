#include <algorithm>
#include <cstdlib>

#include "player/FormFit.h"
#include "player/FormReading.h"
#include "player/Run.h"
#include "player/Screen.h"
#include "player/Steps.h"
#include "player/Tooltip.h"

namespace corvane::player
{
namespace
{

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
    run.WaitFor([name = step.At(0)] {
        const HWND form = FindForm(name);
        return form == nullptr ? L"no window " + name : FitProblem(form);
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
