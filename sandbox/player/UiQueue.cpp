#include "player/UiQueue.h"

#include <exception>
#include <future>
#include <memory>

namespace corvane::player
{
namespace
{

constexpr UINT kWork = WM_APP + 1;
constexpr wchar_t kClassName[] = L"CorvanePlayerQueue";

// The program or the library that holds this code: each has window classes of its own.
HINSTANCE OwnModule()
{
    HMODULE module = nullptr;
    ::GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                         reinterpret_cast<LPCWSTR>(&OwnModule), &module);
    return module;
}

} // namespace

UiQueue::UiQueue() : m_threadId{::GetCurrentThreadId()}
{
    WNDCLASSW windowClass{};
    windowClass.lpfnWndProc = WindowProc;
    windowClass.hInstance = OwnModule();
    windowClass.lpszClassName = kClassName;
    ::RegisterClassW(&windowClass);
    m_window =
        ::CreateWindowExW(0, kClassName, L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, windowClass.hInstance, nullptr);
}

UiQueue::~UiQueue()
{
    ::DestroyWindow(m_window);
    ::UnregisterClassW(kClassName, OwnModule()); // a library that is gone would leave it behind
}

void UiQueue::Post(std::function<void()> work) const
{
    auto owned = std::make_unique<std::function<void()>>(std::move(work));
    if (::PostMessageW(m_window, kWork, 0, reinterpret_cast<LPARAM>(owned.get()))) (void)owned.release();
}

bool UiQueue::Run(std::function<void()> work, std::chrono::milliseconds patience) const
{
    auto task = std::make_shared<std::packaged_task<void()>>(std::move(work));
    auto done = task->get_future();
    Post([task] { (*task)(); });
    if (done.wait_for(patience) != std::future_status::ready) return false;
    done.get();
    return true;
}

LRESULT CALLBACK UiQueue::WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message != kWork) return ::DefWindowProcW(window, message, wParam, lParam);
    const std::unique_ptr<std::function<void()>> work{reinterpret_cast<std::function<void()>*>(lParam)};
    try {
        (*work)();
    } catch (const std::exception&) {
        // Work that nobody waits for reports its own failures.
    }
    return 0;
}

} // namespace corvane::player
