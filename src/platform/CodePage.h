// The system's ANSI code page: 8-bit texts of files and of interfaces without wide characters.
#pragma once

#include <string>
#include <string_view>

namespace corvane
{

// The text in the code page; what that cannot hold is replaced.
[[nodiscard]] std::string ToCodePage(std::wstring_view text);

// The text that these bytes of the code page stand for.
[[nodiscard]] std::wstring FromCodePage(std::string_view bytes);

// True when the code page can hold every character of the text.
[[nodiscard]] bool FitsCodePage(std::wstring_view text);

} // namespace corvane
