#include "shell/System.h"

#include "platform/Utf8.h"

#include <asio/post.hpp>

#include <windows.h>

#include <shellapi.h>

namespace server
{

namespace
{

void Write(DWORD which, std::string_view text)
{
    const HANDLE output = ::GetStdHandle(which);
    DWORD written = 0;
    if (::GetConsoleMode(output, &written)) {
        const auto wide = corvane::FromUtf8(text);
        ::WriteConsoleW(output, wide.data(), static_cast<DWORD>(wide.size()), &written, nullptr);
    } else {
        ::WriteFile(output, text.data(), static_cast<DWORD>(text.size()), &written, nullptr);
    }
}

} // namespace

struct Stops::Source
{
    asio::io_context& context;
    std::function<void()> stop;
};

namespace
{

// What the handler of the console's events, which the system calls on a thread of its own, shares with the server.
SRWLOCK g_lock = SRWLOCK_INIT;
CONDITION_VARIABLE g_gone = CONDITION_VARIABLE_INIT;
std::function<void()> g_ask; // empty: there is nothing to end in order

BOOL WINAPI Handle(DWORD event)
{
    ::AcquireSRWLockExclusive(&g_lock);
    const BOOL handled = g_ask != nullptr;
    if (handled) g_ask();
    // When it returns from any other event, the program is ended.
    while (g_ask && event != CTRL_C_EVENT && event != CTRL_BREAK_EVENT)
        ::SleepConditionVariableSRW(&g_gone, &g_lock, INFINITE, 0);
    ::ReleaseSRWLockExclusive(&g_lock);
    return handled;
}

void SetAsk(std::function<void()> ask)
{
    ::AcquireSRWLockExclusive(&g_lock);
    g_ask = std::move(ask);
    ::ReleaseSRWLockExclusive(&g_lock);
}

} // namespace

std::vector<std::string> Arguments(int /*count*/, const char* const* /*arguments*/)
{
    int count = 0;
    const std::unique_ptr<LPWSTR, decltype(&::LocalFree)> words{::CommandLineToArgvW(::GetCommandLineW(), &count),
                                                                &::LocalFree};
    std::vector<std::string> list;
    for (int at = 1; at < count; ++at)
        list.push_back(corvane::ToUtf8(words.get()[at]));
    return list;
}

void Print(std::string_view text) { Write(STD_OUTPUT_HANDLE, text); }
void PrintError(std::string_view text) { Write(STD_ERROR_HANDLE, text); }

// The context's thread calls, and not before it runs.
Stops::Stops(asio::io_context& context) : m_source{std::make_unique<Source>(Source{context, {}})}
{
    SetAsk([source = m_source.get()] { asio::post(source->context, [source] { source->stop(); }); });
    ::SetConsoleCtrlHandler(&Handle, TRUE);
}

Stops::~Stops()
{
    ::SetConsoleCtrlHandler(&Handle, FALSE);
    SetAsk({});
    ::WakeAllConditionVariable(&g_gone);
}

void Stops::WhenAsked(std::function<void()> stop) { m_source->stop = std::move(stop); }

} // namespace server
