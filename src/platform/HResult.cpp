#include "platform/HResult.h"

#include "platform/Error.h"

#include <array>
#include <cwchar>

namespace corvane
{

std::wstring MessageOf(HRESULT result)
{
    std::array<wchar_t, 512> text{};
    const DWORD length = ::FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
                                          static_cast<DWORD>(result), 0, text.data(), text.size(), nullptr);
    std::wstring message{text.data(), length};
    while (!message.empty() && (message.back() == L'\r' || message.back() == L'\n' || message.back() == L' '))
        message.pop_back();
    if (!message.empty()) return message;
    const int written = std::swprintf(text.data(), text.size(), L"Error 0x%08lX", static_cast<unsigned long>(result));
    return {text.data(), static_cast<std::size_t>(written)};
}

void Check(HRESULT result, std::wstring_view source)
{
    if (FAILED(result)) throw Error{ErrorNumberOf(result), std::wstring{source}, MessageOf(result)};
}

void CheckWin32(bool ok, std::wstring_view source)
{
    if (ok) return;
    const HRESULT told = HRESULT_FROM_WIN32(::GetLastError());
    Check(FAILED(told) ? told : E_FAIL, source); // what failed may have left no error of its own
}

} // namespace corvane
