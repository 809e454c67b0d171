#include "base/Console.h"

#include <mutex>
#include <string>

#include <windows.h>

#include "base/Text.h"

namespace host
{
namespace
{

void WriteLine(DWORD which, std::wstring_view line)
{
    static std::mutex mutex;
    const std::lock_guard lock{mutex};
    const HANDLE output = ::GetStdHandle(which);
    if (!output || output == INVALID_HANDLE_VALUE) return;
    const std::string text = Narrow(line) + "\n";
    DWORD written = 0;
    ::WriteFile(output, text.data(), static_cast<DWORD>(text.size()), &written, nullptr);
}

} // namespace

void Print(std::wstring_view line) { WriteLine(STD_OUTPUT_HANDLE, line); }
void PrintError(std::wstring_view line) { WriteLine(STD_ERROR_HANDLE, line); }

} // namespace host
