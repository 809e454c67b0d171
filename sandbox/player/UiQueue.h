// Work for the user interface's thread.
#pragma once

#include <chrono>
#include <functional>

#include <windows.h>

namespace corvane::player
{

// Work for the user-interface thread from other threads. It arrives as a posted message, so a modal loop of an add-in
// runs it as well, and in the order of that thread's other posted messages.
class UiQueue
{
public:
    UiQueue(); // on the user-interface thread
    UiQueue(const UiQueue&) = delete;
    UiQueue& operator=(const UiQueue&) = delete;
    ~UiQueue();

    void Post(std::function<void()> work) const;

    // Posts the work and waits for its end; false when it did not end in time (it may still run later, so the work must
    // own what it uses). What the work throws is thrown here.
    [[nodiscard]] bool Run(std::function<void()> work, std::chrono::milliseconds patience) const;

    [[nodiscard]] DWORD ThreadId() const { return m_threadId; }

private:
    static LRESULT CALLBACK WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    HWND m_window;
    DWORD m_threadId;
};

} // namespace corvane::player
