// The list of server addresses, most recent first, and the form an address is brought into.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace corvane
{

inline constexpr std::int32_t kDefaultServerCount = 5;

// The length of the list: the policy's, else the user's, else the default; within what a person could scroll.
[[nodiscard]] std::size_t ServerCount(std::optional<std::int32_t> policy, std::optional<std::int32_t> user);

// The list with the administrators' addresses in front, each in the form that VerifyServerURL gives it: first those
// that the user has worked with, the latest first, then the others. The user's own addresses follow as far as the
// length allows; it grows only for the administrators'. Without such addresses the list stays as it is.
[[nodiscard]] std::vector<std::wstring> WithPreset(const std::vector<std::wstring>& urls,
                                                   const std::vector<std::wstring>& preset);

// Puts an address at the front of a list of fixed length. An equal entry (exact comparison) moves there from its
// place; without one every entry moves down and the last falls off.
void MoveToFront(std::vector<std::wstring>& urls, std::wstring_view url);

// An address as the add-in uses it: without blanks at its ends, in lower case, with a scheme.
[[nodiscard]] std::wstring VerifyServerURL(std::wstring_view url);

} // namespace corvane
