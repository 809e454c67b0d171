#pragma once

#include <string>
#include <string_view>

namespace host
{

// UTF-8 to and from the system's wide text.
[[nodiscard]] std::wstring Widen(std::string_view text);
[[nodiscard]] std::string Narrow(std::wstring_view text);

// The machine's code page to and from wide text; letters that it does not have become "?".
[[nodiscard]] std::wstring FromCodePage(std::string_view text);
[[nodiscard]] std::string ToCodePage(std::wstring_view text);

// A caption as a user reads it: without the mark of its access key, and one "&" for two.
[[nodiscard]] std::wstring WithoutMark(std::wstring caption);

} // namespace host
