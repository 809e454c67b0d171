// The add-in's waits: they sleep until a message comes and keep every window alive meanwhile.
#pragma once

#include <windows.h>

#include <chrono>
#include <functional>
#include <optional>

namespace corvane
{

enum class WaitEnd
{
    Done,     // the awaited state is reached
    TimedOut, // the limit passed first
    Quit      // the thread is told to end; the quit message is back in the queue
};

// Dispatches messages until done() holds. done is asked before the first wait and after every message, so what it
// watches must change on this thread. Between messages the thread sleeps; no limit means waiting for ever. A limit is
// time spent waiting: a handler that runs for long, or the machine's own sleep, takes no more than a moment of it.
[[nodiscard]] WaitEnd PumpUntil(const std::function<bool()>& done,
                                std::optional<std::chrono::milliseconds> limit = std::nullopt);

// Lets time pass while messages are handled; returns early when the thread is told to end.
void PumpFor(std::chrono::milliseconds time);

// Handles the messages that are waiting now, and returns.
void PumpPending();

// Keeps windows alive while this thread works for long: handles the messages that wait whenever the last look at them
// is a while ago. Whoever works must expect what messages bring, such as its window being hidden.
class WorkPauses
{
public:
    // To be called after every small step of the work.
    void Step();

private:
    std::size_t m_steps = 0;
    std::chrono::steady_clock::time_point m_last; // long ago: what came before the first step may have taken long
};

// Windows whose dialog keys (Tab, Enter, Esc, access keys) the loops above serve. Esc presses its button even while
// that is out of use.
void AddDialogWindow(HWND window);
void RemoveDialogWindow(HWND window) noexcept;

} // namespace corvane
