#include "automation/Text.h"

#include <windows.h>

namespace host
{
namespace
{

std::wstring Decode(UINT codePage, std::string_view text)
{
    const int size = static_cast<int>(text.size());
    const int needed = ::MultiByteToWideChar(codePage, 0, text.data(), size, nullptr, 0);
    std::wstring wide(static_cast<std::size_t>(needed), L'\0');
    ::MultiByteToWideChar(codePage, 0, text.data(), size, wide.data(), needed);
    return wide;
}

std::string Encode(UINT codePage, std::wstring_view text)
{
    const int size = static_cast<int>(text.size());
    const int needed = ::WideCharToMultiByte(codePage, 0, text.data(), size, nullptr, 0, nullptr, nullptr);
    std::string narrow(static_cast<std::size_t>(needed), '\0');
    ::WideCharToMultiByte(codePage, 0, text.data(), size, narrow.data(), needed, nullptr, nullptr);
    return narrow;
}

} // namespace

std::wstring Widen(std::string_view text) { return Decode(CP_UTF8, text); }
std::string Narrow(std::wstring_view text) { return Encode(CP_UTF8, text); }
std::wstring FromCodePage(std::string_view text) { return Decode(CP_ACP, text); }
std::string ToCodePage(std::wstring_view text) { return Encode(CP_ACP, text); }

std::wstring WithoutMark(std::wstring caption)
{
    for (std::size_t at = caption.find(L'&'); at != std::wstring::npos; at = caption.find(L'&', at + 1))
        caption.erase(at, 1); // the letter behind it stays, also where it is a second mark
    return caption;
}

} // namespace host
