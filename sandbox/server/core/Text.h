// Text from bytes that may mean Latin-1, and its comparison without regard to letter case.
#pragma once

#include <string>
#include <string_view>

namespace server
{

// Every byte as the character of the same number.
[[nodiscard]] std::string Latin1ToUtf8(std::string_view bytes);

// Keeps valid UTF-8 sequences and reads every other byte from 0x80 on as Latin-1: clients send Latin-1 letters raw in a
// query but as UTF-8 in a body.
[[nodiscard]] std::string ToUtf8(std::string_view bytes);

// Whether ASCII text is the same but for the case of its letters.
[[nodiscard]] bool EqualNoCase(std::string_view left, std::string_view right);

// Whether UTF-8 text holds the part; ASCII and Latin-1 letters count alike in both cases.
[[nodiscard]] bool ContainsNoCase(std::string_view text, std::string_view part);

} // namespace server
