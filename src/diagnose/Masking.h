// Credentials taken out of what leaves the machine.
#pragma once

#include <string>
#include <string_view>

namespace diagnose
{

// The text with stars in place of the user name and password of every address in it, and of every "name:password@".
[[nodiscard]] std::wstring Masked(std::wstring_view text);

// The same of a setting's value, which may be an address without its scheme, or two of them.
[[nodiscard]] std::wstring MaskedValue(std::wstring_view value);

} // namespace diagnose
