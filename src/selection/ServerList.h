// The list of server addresses, most recent first, and the form an address is brought into.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace corvane
{

inline constexpr std::size_t kDefaultServerCount = 5;

// Puts an address at the front of a list of fixed length. An equal entry (exact comparison) moves there from its
// place; without one every entry moves down and the last falls off.
void MoveToFront(std::vector<std::wstring>& urls, std::wstring_view url);

// An address as the add-in uses it: without blanks at its ends, in lower case, with a scheme.
[[nodiscard]] std::wstring VerifyServerURL(std::wstring_view url);

} // namespace corvane
