#include "platform/MessageLoop.h"

#include <algorithm>
#include <vector>

namespace corvane
{
namespace
{

using Clock = std::chrono::steady_clock;

std::vector<HWND>& DialogWindows()
{
    static std::vector<HWND> windows;
    return windows;
}

void Dispatch(MSG& message)
{
    const auto& dialogs = DialogWindows();
    const HWND top = message.hwnd == nullptr ? nullptr : ::GetAncestor(message.hwnd, GA_ROOT);
    if (std::find(dialogs.begin(), dialogs.end(), top) != dialogs.end() && ::IsDialogMessageW(top, &message)) return;
    ::TranslateMessage(&message);
    ::DispatchMessageW(&message);
}

// Handles one waiting message. False when there is none; a quit message goes back to the queue and sets quit.
bool DispatchOne(bool& quit)
{
    MSG message{};
    if (!::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) return false;
    if (message.message == WM_QUIT) {
        ::PostQuitMessage(static_cast<int>(message.wParam));
        quit = true;
        return false;
    }
    Dispatch(message);
    return true;
}

// The time left to a limit in whole milliseconds, rounded up; INFINITE without one.
DWORD LeftUntil(const std::optional<Clock::time_point>& end)
{
    if (!end) return INFINITE;
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(*end - Clock::now()).count();
    return static_cast<DWORD>(std::clamp<long long>(left, 0, INFINITE - 1));
}

} // namespace

WaitEnd PumpUntil(const std::function<bool()>& done, std::optional<std::chrono::milliseconds> limit)
{
    const auto end = limit ? std::optional{Clock::now() + *limit} : std::nullopt;
    bool quit = false;
    while (!done()) {
        const DWORD left = LeftUntil(end);
        if (left == 0) return WaitEnd::TimedOut;
        if (DispatchOne(quit)) continue;
        if (quit) return WaitEnd::Quit;
        if (done()) break; // a message sent from elsewhere was handled while none was waiting
        ::MsgWaitForMultipleObjectsEx(0, nullptr, left, QS_ALLINPUT, MWMO_INPUTAVAILABLE);
    }
    return WaitEnd::Done;
}

void PumpFor(std::chrono::milliseconds time)
{
    static_cast<void>(PumpUntil([] { return false; }, time));
}

void PumpPending()
{
    bool quit = false;
    while (DispatchOne(quit)) {
    }
}

void WorkPauses::Step()
{
    constexpr std::chrono::milliseconds kLongestWork{10};
    if (Clock::now() - m_last < kLongestWork) return;
    PumpPending();
    m_last = Clock::now();
}

void AddDialogWindow(HWND window) { DialogWindows().push_back(window); }

void RemoveDialogWindow(HWND window) noexcept
{
    auto& windows = DialogWindows();
    windows.erase(std::remove(windows.begin(), windows.end(), window), windows.end());
}

} // namespace corvane
