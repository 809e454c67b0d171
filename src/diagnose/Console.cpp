#include "diagnose/Console.h"

#include "platform/Utf8.h"

#include <windows.h>

namespace diagnose
{
namespace
{

void WriteTo(DWORD stream, std::wstring_view text)
{
    const HANDLE output = ::GetStdHandle(stream);
    DWORD written = 0;
    if (::WriteConsoleW(output, text.data(), static_cast<DWORD>(text.size()), &written, nullptr)) return;
    const std::string bytes = corvane::ToUtf8(text);
    ::WriteFile(output, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
}

bool IsKeyPress(const INPUT_RECORD& event) { return event.EventType == KEY_EVENT && event.Event.KeyEvent.bKeyDown; }

} // namespace

void Print(std::wstring_view text) { WriteTo(STD_OUTPUT_HANDLE, text); }

void Complain(std::wstring_view text) { WriteTo(STD_ERROR_HANDLE, text); }

void WaitForKey()
{
    const HANDLE input = ::GetStdHandle(STD_INPUT_HANDLE);
    DWORD mode = 0;
    if (!::GetConsoleMode(input, &mode)) return;
    Print(L"Press a key to close this window.\r\n");
    ::FlushConsoleInputBuffer(input);
    INPUT_RECORD event{};
    DWORD read = 0;
    while (::ReadConsoleInputW(input, &event, 1, &read) && !IsKeyPress(event)) {
    }
}

} // namespace diagnose
