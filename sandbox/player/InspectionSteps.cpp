#include <algorithm>
#include <cstdlib>
#include <stdexcept>

#include "automation/Text.h"
#include "player/FormFit.h"
#include "player/FormReading.h"
#include "player/MessageBox.h"
#include "player/Player.h"
#include "player/Screen.h"
#include "player/Tooltip.h"
#include "ui/MainWindow.h"

namespace host
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

} // namespace

void Player::LayoutFits(const Step& step)
{
    WaitFor([name = Widen(step.At(0))] {
        const HWND form = FindForm(name);
        return form ? FitProblem(form) : L"no window " + name;
    });
}

void Player::Readable(const Step& step)
{
    WaitFor([&, name = Widen(step.At(0))] {
        Finding problem = L"no window " + name;
        OnUi([&] {
            if (const HWND form = FindForm(name)) problem = ReadingProblem(form);
        });
        return problem;
    });
}

void Player::Spoken(const Step& step)
{
    WaitFor([&, wanted = Widen(step.At(1))]() -> Finding {
        const HWND control = Control(step.At(0));
        if (!control) return L"no such control in " + m_form;
        std::wstring name;
        OnUi([&] { name = SpokenName(control); });
        return name == wanted ? Finding{} : L"its name is \"" + name + L"\"";
    });
}

// The title bar is the form's. Wine may tell of a move once more after the next one, and its tooltips then wait for the
// mouse to come again: as a hand would, it leaves the form and returns.
void Player::Hover(const Step& step)
{
    constexpr int kLooks = 12; // for something over a second
    const HWND form = Form();
    const HWND control = step.At(0) == "caption" ? form : Control(step.At(0));
    if (!control) throw std::runtime_error{"no " + step.At(0) + " is there"};
    if (step.At(1).empty()) {
        PointAt(form, control);
        ::Sleep(2 * ::GetDoubleClickTime()); // a tooltip comes after a double click's time
        const std::wstring tip = ShownTip(form);
        if (!tip.empty()) throw Error{E_FAIL, {}, L"the tooltip is \"" + tip + L"\""};
        return;
    }
    WaitFor([&, wanted = Widen(step.At(1)), look = 0]() mutable {
        if (look % kLooks == 0) PointAt(form, control);
        if (++look % kLooks == 0) ::SetCursorPos(0, 0);
        const std::wstring tip = ShownTip(form);
        return tip == wanted ? Finding{} : L"the tooltip is \"" + tip + L"\"";
    });
}

// "host", "message", or a form's name.
HWND Player::NamedWindow(const std::string& name)
{
    if (name == "host") return m_host.Window().Handle();
    if (name != "message") return FindForm(Widen(name));
    const auto boxes = MessageBoxes();
    return boxes.empty() ? nullptr : boxes.front();
}

void Player::Over(const Step& step)
{
    WaitFor([&]() -> Finding {
        const HWND window = NamedWindow(step.At(0));
        const HWND owner = NamedWindow(step.At(1));
        if (!window || !owner) return L"no window " + Widen(step.At(window ? 1 : 0));
        if (::GetWindow(window, GW_OWNER) != owner) return L"it belongs to another window";
        if (::IsWindowEnabled(owner)) return L"its owner is not disabled";
        if (::GetForegroundWindow() != window) return L"it is not in the foreground";
        return step.At(0) == "message" ? Finding{} : PlaceProblem(window, owner);
    });
}

void Player::ExpectHost(const Step& step)
{
    if (step.At(1) != "focused") throw std::runtime_error{"the host can be expected to be focused"};
    WaitFor([&] {
        const HWND window = m_host.Window().Handle();
        const HWND focus = FocusOf(m_host.Queue().ThreadId());
        const bool isFocused = focus && ::GetAncestor(focus, GA_ROOT) == window && ::GetForegroundWindow() == window;
        return isFocused ? Finding{} : Finding{L"another window has the keyboard"};
    });
}

} // namespace host
