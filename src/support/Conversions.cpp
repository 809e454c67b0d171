#include "support/Conversions.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace corvane
{
namespace
{

constexpr std::wstring_view kBlanks = L" \t\r\n";

std::wstring_view Stripped(std::wstring_view text, std::wstring_view blanks)
{
    const auto first = text.find_first_not_of(blanks);
    if (first == std::wstring_view::npos) return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

// Takes the digits at the front of text; the number of digits taken.
std::size_t TakeDigits(std::wstring_view& text, double& value, double step)
{
    std::size_t count = 0;
    for (double scale = step; count < text.size() && text[count] >= L'0' && text[count] <= L'9'; ++count) {
        const double digit = text[count] - L'0';
        value = step < 1 ? value + digit * scale : value * 10 + digit;
        scale *= step;
    }
    text.remove_prefix(count);
    return count;
}

bool TakeOneOf(std::wstring_view& text, std::wstring_view letters)
{
    if (text.empty() || letters.find(text.front()) == std::wstring_view::npos) return false;
    text.remove_prefix(1);
    return true;
}

bool TakeSign(std::wstring_view& text)
{
    const bool negative = text.starts_with(L'-');
    static_cast<void>(TakeOneOf(text, L"+-"));
    return negative;
}

// Digits of a power-of-two base; they fill 32 bits and so may come out negative.
std::optional<double> BitsIn(std::wstring_view digits, std::uint32_t base)
{
    std::uint64_t bits = 0;
    for (const wchar_t letter : digits) {
        const auto lower = static_cast<std::uint32_t>(letter | 0x20);
        const std::uint32_t digit = lower >= L'a' ? lower - L'a' + 10 : static_cast<std::uint32_t>(letter) - L'0';
        if (digit >= base || (lower > L'9' && lower < L'a')) return std::nullopt;
        bits = bits * base + digit;
        if (bits > std::numeric_limits<std::uint32_t>::max()) return std::nullopt;
    }
    if (digits.empty()) return std::nullopt;
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(bits));
}

// Capitals of Unicode in runs: every step-th from first to last has its small letter offset further on.
struct CapitalRun
{
    std::uint32_t first;
    std::uint32_t last;
    std::uint32_t step;
    std::int32_t offset;
};
constexpr CapitalRun kCapitals[] = {
    {U'A', U'Z', 1, 32},     {0x00C0, 0x00D6, 1, 32},    {0x00D8, 0x00DE, 1, 32}, // Latin
    {0x0100, 0x012E, 2, 1},  {0x0132, 0x0136, 2, 1},     {0x0139, 0x0147, 2, 1},  // with further accents
    {0x014A, 0x0176, 2, 1},  {0x0178, 0x0178, 1, -0x79}, {0x0179, 0x017D, 2, 1},
    {0x0386, 0x0386, 1, 38}, {0x0388, 0x038A, 1, 37},    {0x038C, 0x038C, 1, 64}, // Greek
    {0x038E, 0x038F, 1, 63}, {0x0391, 0x03A1, 1, 32},    {0x03A3, 0x03AB, 1, 32},
    {0x0400, 0x040F, 1, 80}, {0x0410, 0x042F, 1, 32},    {0x0460, 0x0480, 2, 1}, // Cyrillic
    {0x048A, 0x04BE, 2, 1},  {0x04C1, 0x04CD, 2, 1},     {0x04D0, 0x052E, 2, 1},
    {0x1E00, 0x1E94, 2, 1},  {0x1EA0, 0x1EFE, 2, 1}, // Latin of Vietnamese and others
};

wchar_t LowerOf(wchar_t letter)
{
    const auto code = static_cast<std::uint32_t>(letter);
    for (const auto& [first, last, step, offset] : kCapitals) {
        if (code >= first && code <= last && (code - first) % step == 0)
            return static_cast<wchar_t>(static_cast<std::int32_t>(code) + offset);
    }
    return letter;
}

} // namespace

std::optional<double> NumberIn(std::wstring_view text)
{
    text = Stripped(text, kBlanks);
    if (text.starts_with(L"&H") || text.starts_with(L"&h")) return BitsIn(text.substr(2), 16);
    if (text.starts_with(L"&O") || text.starts_with(L"&o")) return BitsIn(text.substr(2), 8);

    const bool negative = TakeSign(text);
    double value = 0;
    std::size_t digits = TakeDigits(text, value, 10);
    if (TakeOneOf(text, L".")) digits += TakeDigits(text, value, 0.1);
    if (digits == 0) return std::nullopt;
    if (TakeOneOf(text, L"eEdD")) {
        const bool small = TakeSign(text);
        double exponent = 0;
        if (TakeDigits(text, exponent, 10) == 0) return std::nullopt;
        value *= std::pow(10.0, small ? -exponent : exponent);
    }
    if (!text.empty() || !std::isfinite(value)) return std::nullopt;
    return negative ? -value : value;
}

std::optional<std::int32_t> NearestLong(double number) noexcept
{
    const double rounded = std::nearbyint(number); // halves to even in the default rounding mode
    if (!(rounded >= std::numeric_limits<std::int32_t>::min() && rounded <= std::numeric_limits<std::int32_t>::max()))
        return std::nullopt;
    return static_cast<std::int32_t>(rounded);
}

std::int32_t ToLongSafe(std::wstring_view text)
{
    const auto number = NumberIn(text);
    return number ? NearestLong(*number).value_or(0) : 0;
}

bool ToBooleanSafe(std::wstring_view text)
{
    if (EqualIgnoringCase(text, L"true")) return true;
    return NumberIn(text).value_or(0) != 0;
}

std::wstring Trim(std::wstring_view text) { return std::wstring{Stripped(text, L" ")}; }

std::wstring ToLower(std::wstring_view text)
{
    std::wstring lower{text};
    std::transform(lower.begin(), lower.end(), lower.begin(), LowerOf);
    return lower;
}

bool EqualIgnoringCase(std::wstring_view left, std::wstring_view right) { return ToLower(left) == ToLower(right); }

std::wstring ReplaceAll(std::wstring_view text, std::wstring_view what, std::wstring_view with)
{
    std::wstring result;
    while (!what.empty()) {
        const auto position = text.find(what);
        if (position == std::wstring_view::npos) break;
        result.append(text.substr(0, position)).append(with);
        text.remove_prefix(position + what.size());
    }
    return result.append(text);
}

} // namespace corvane
