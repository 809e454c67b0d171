// UTF-8: how its bytes are made and read.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace corvane
{

// Appends a code point; what is none (half of a surrogate pair, a number above the last) becomes U+FFFD.
void AppendUtf8(std::string& utf8, std::uint32_t code);

// UTF-8 of a text whose code units are UTF-16 (or, where wide characters have 32 bits, UTF-32). A half of a surrogate
// pair without the other becomes U+FFFD.
[[nodiscard]] std::string ToUtf8(std::wstring_view text);

// The text, in the units of wide characters, that these bytes stand for; each run of bytes that stands for nothing
// becomes U+FFFD.
[[nodiscard]] std::wstring FromUtf8(std::string_view utf8);

} // namespace corvane
