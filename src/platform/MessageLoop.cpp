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

// A key comes as one of the system's where the control that had the keyboard was put out of use.
bool IsEsc(const MSG& message) noexcept
{
    constexpr LPARAM kWithAlt = 1 << 29;
    const bool isDown =
        message.message == WM_KEYDOWN || (message.message == WM_SYSKEYDOWN && (message.lParam & kWithAlt) == 0);
    return isDown && message.wParam == VK_ESCAPE;
}

// Ctrl+A selects a text box's whole text; not every edition of the control does so by itself.
bool SelectsAll(const MSG& message) noexcept
{
    constexpr WPARAM kCtrlA = 1; // the character that it types
    if (message.message != WM_CHAR || message.wParam != kCtrlA) return false;
    if ((::SendMessageW(message.hwnd, WM_GETDLGCODE, 0, 0) & DLGC_HASSETSEL) == 0) return false;
    ::SendMessageW(message.hwnd, EM_SETSEL, 0, -1);
    return true;
}

bool IsKeyOfDialog(HWND dialog, MSG& message)
{
    if (SelectsAll(message)) return true;
    const HWND cancel = IsEsc(message) ? ::GetDlgItem(dialog, IDCANCEL) : nullptr;
    if (cancel == nullptr || ::IsWindowEnabled(cancel)) return ::IsDialogMessageW(dialog, &message) != FALSE;
    // The system would only beep.
    ::SendMessageW(dialog, WM_COMMAND, MAKEWPARAM(IDCANCEL, BN_CLICKED), reinterpret_cast<LPARAM>(cancel));
    return true;
}

void Dispatch(MSG& message)
{
    const auto& dialogs = DialogWindows();
    const HWND top = message.hwnd == nullptr ? nullptr : ::GetAncestor(message.hwnd, GA_ROOT);
    if (std::find(dialogs.begin(), dialogs.end(), top) != dialogs.end() && IsKeyOfDialog(top, message)) return;
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

// Counts a limit down, turn by turn. Most of a turn that takes long is none of the wait's own time: a handler runs
// another command, the machine sleeps or is too busy to let this thread go on. What came meanwhile has yet to be seen.
class Countdown
{
public:
    explicit Countdown(std::optional<Clock::duration> limit) : m_left{limit} {}

    // Begins a turn: the whole milliseconds it may wait at most, rounded up; 0 when the limit has passed.
    DWORD NextTurn()
    {
        if (!m_left) return INFINITE;
        constexpr Clock::duration kLongestTurn = std::chrono::milliseconds{250};
        const auto now = Clock::now();
        *m_left -= std::min(now - m_turn, kLongestTurn);
        m_turn = now;
        const auto turn = std::clamp(*m_left, Clock::duration::zero(), kLongestTurn);
        return static_cast<DWORD>(std::chrono::ceil<std::chrono::milliseconds>(turn).count());
    }

private:
    std::optional<Clock::duration> m_left;
    Clock::time_point m_turn = Clock::now();
};

} // namespace

WaitEnd PumpUntil(const std::function<bool()>& done, std::optional<std::chrono::milliseconds> limit)
{
    Countdown countdown{limit};
    bool quit = false;
    while (!done()) {
        const DWORD turn = countdown.NextTurn();
        if (turn == 0) return WaitEnd::TimedOut;
        if (DispatchOne(quit)) continue;
        if (quit) return WaitEnd::Quit;
        if (done()) break; // a message sent from elsewhere was handled while none was waiting
        ::MsgWaitForMultipleObjectsEx(0, nullptr, turn, QS_ALLINPUT, MWMO_INPUTAVAILABLE);
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
    constexpr std::size_t kStepsALook = 16; // asking for the time takes as long as a step
    constexpr std::chrono::milliseconds kLongestWork{10};
    if (m_steps++ % kStepsALook != 0) return;
    if (Clock::now() - m_last < kLongestWork) return;
    PumpPending();
    m_last = Clock::now();
}

void AddDialogWindow(HWND window) { DialogWindows().push_back(window); }

void RemoveDialogWindow(HWND window) noexcept { std::erase(DialogWindows(), window); }

} // namespace corvane
