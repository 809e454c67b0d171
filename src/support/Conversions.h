// Lenient conversions of texts that come from documents, settings and the server.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace corvane
{

// The number that Automation reads from a text: blanks around it, a sign, a fraction, an exponent, or a hexadecimal
// (&H) or octal (&O) form; nothing when the text is no number.
[[nodiscard]] std::optional<double> NumberIn(std::wstring_view text);

// The 32-bit integer next to a number, halves rounded to even; nothing where it is out of range.
[[nodiscard]] std::optional<std::int32_t> NearestLong(double number) noexcept;

// The same of a text; 0 for anything that is not one.
[[nodiscard]] std::int32_t ToLongSafe(std::wstring_view text);

// True for "true" in any letter case and for a number other than 0; false for everything else.
[[nodiscard]] bool ToBooleanSafe(std::wstring_view text);

// The text without the blanks at both ends.
[[nodiscard]] std::wstring Trim(std::wstring_view text);

// Letters folded one by one, without regard to a language.
[[nodiscard]] std::wstring ToLower(std::wstring_view text);
[[nodiscard]] bool EqualIgnoringCase(std::wstring_view left, std::wstring_view right);

// Every occurrence of what (case-sensitive, left to right) replaced by with; an empty what changes nothing.
[[nodiscard]] std::wstring ReplaceAll(std::wstring_view text, std::wstring_view what, std::wstring_view with);

// A caption in which every "&" shows as itself instead of marking an access key.
[[nodiscard]] inline std::wstring EscapeAmpersands(std::wstring_view text) { return ReplaceAll(text, L"&", L"&&"); }

} // namespace corvane
