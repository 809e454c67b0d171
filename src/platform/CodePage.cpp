#include "platform/CodePage.h"

#include <windows.h>

namespace corvane
{

std::string ToCodePage(std::wstring_view text)
{
    std::string bytes(text.size() * 4, '\0');
    const int length = ::WideCharToMultiByte(CP_ACP, 0, text.data(), static_cast<int>(text.size()), bytes.data(),
                                             static_cast<int>(bytes.size()), nullptr, nullptr);
    bytes.resize(static_cast<std::size_t>(length));
    return bytes;
}

std::wstring FromCodePage(std::string_view bytes)
{
    std::wstring text(bytes.size(), L'\0'); // no code page has more characters than bytes
    const int length = ::MultiByteToWideChar(CP_ACP, 0, bytes.data(), static_cast<int>(bytes.size()), text.data(),
                                             static_cast<int>(text.size()));
    text.resize(static_cast<std::size_t>(length));
    return text;
}

bool FitsCodePage(std::wstring_view text) { return FromCodePage(ToCodePage(text)) == text; }

} // namespace corvane
