// Texts, which are UTF-8 throughout, taken apart and put together.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace verify
{

[[nodiscard]] std::vector<std::string> Lines(std::string_view text);
[[nodiscard]] std::string_view Trimmed(std::string_view text);

// What stands before and behind the first separator; without one, all is before it.
[[nodiscard]] std::pair<std::string, std::string> CutAt(std::string_view text, std::string_view separator);

[[nodiscard]] std::string Replaced(std::string text, std::string_view what, std::string_view by);
[[nodiscard]] std::string Joined(const std::vector<std::string>& texts, std::string_view between);

// A shell's words: blanks part them but within quotes, a backslash keeps what follows it, in double quotes a quote or a
// backslash. Throws Failure where a quote stays open.
[[nodiscard]] std::vector<std::string> Words(std::string_view text);

// Whatever is no UTF-8 becomes U+FFFD.
[[nodiscard]] std::string ReadableUtf8(std::string_view bytes);
[[nodiscard]] std::string FromWindows1252(std::string_view bytes);

[[nodiscard]] std::string FromBase64(std::string_view text); // throws Failure where it is none
[[nodiscard]] std::string ToBase64(std::string_view bytes);

} // namespace verify
