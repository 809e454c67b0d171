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

} // namespace host
