#include "platform/Utf8.h"

#include <array>

namespace corvane
{
namespace
{

constexpr std::uint32_t kReplacementCharacter = 0xFFFD;
constexpr std::uint32_t kLastCode = 0x10FFFF;
constexpr std::uint32_t kFirstOfPairs = 0x10000;

constexpr bool IsHighSurrogate(std::uint32_t unit) { return unit >= 0xD800 && unit <= 0xDBFF; }
constexpr bool IsLowSurrogate(std::uint32_t unit) { return unit >= 0xDC00 && unit <= 0xDFFF; }

constexpr std::uint32_t CodeOrReplacement(std::uint32_t code)
{
    return IsHighSurrogate(code) || IsLowSurrogate(code) || code > kLastCode ? kReplacementCharacter : code;
}

constexpr std::uint32_t ByteOf(char letter) { return static_cast<unsigned char>(letter); }

// Takes the first byte off a text that has one.
std::uint32_t TakeByte(std::string_view& utf8)
{
    const std::uint32_t byte = ByteOf(utf8.front());
    utf8.remove_prefix(1);
    return byte;
}

bool HasFollowingByte(std::string_view utf8) { return !utf8.empty() && (ByteOf(utf8.front()) & 0xC0U) == 0x80U; }

// Takes the next code point off the front of a text that is not empty.
std::uint32_t TakeCode(std::string_view& utf8)
{
    constexpr std::uint32_t kLeast[] = {0, 0x80, 0x800, 0x10000}; // what needs so many further bytes
    const std::uint32_t lead = TakeByte(utf8);
    if (lead < 0x80) return lead;
    if (lead < 0xC2 || lead > 0xF4) return kReplacementCharacter;
    const std::uint32_t following = lead < 0xE0 ? 1 : lead < 0xF0 ? 2 : 3;
    std::uint32_t code = lead & (0x3FU >> following);
    for (std::uint32_t count = 0; count < following; ++count) {
        if (!HasFollowingByte(utf8)) return kReplacementCharacter;
        code = (code << 6U) | (TakeByte(utf8) & 0x3FU);
    }
    return code < kLeast[following] ? kReplacementCharacter : CodeOrReplacement(code);
}

void AppendWide(std::wstring& text, std::uint32_t code)
{
    if (sizeof(wchar_t) > 2 || code < kFirstOfPairs) {
        text += static_cast<wchar_t>(code);
        return;
    }
    text += static_cast<wchar_t>(0xD800U + ((code - kFirstOfPairs) >> 10U));
    text += static_cast<wchar_t>(0xDC00U + (code & 0x3FFU));
}

} // namespace

void AppendUtf8(std::string& utf8, std::uint32_t code)
{
    constexpr std::uint32_t kLeads[] = {0, 0xC0, 0xE0, 0xF0}; // by the number of further bytes
    code = CodeOrReplacement(code);
    const std::uint32_t following = (code >= 0x80) + (code >= 0x800) + (code >= kFirstOfPairs);
    std::array<char, 4> bytes{};
    bytes[0] = static_cast<char>(kLeads[following] | (code >> (6 * following)));
    for (std::uint32_t index = 1; index <= following; ++index)
        bytes[index] = static_cast<char>(0x80U | ((code >> (6 * (following - index))) & 0x3FU));
    utf8.append(bytes.data(), following + 1);
}

std::string ToUtf8(std::wstring_view text)
{
    std::string utf8;
    for (std::size_t index = 0; index < text.size(); ++index) {
        auto code = static_cast<std::uint32_t>(text[index]);
        const std::uint32_t next = index + 1 < text.size() ? static_cast<std::uint32_t>(text[index + 1]) : 0;
        if (IsHighSurrogate(code) && IsLowSurrogate(next)) {
            code = kFirstOfPairs + ((code - 0xD800U) << 10U) + (next - 0xDC00U);
            ++index;
        }
        AppendUtf8(utf8, code);
    }
    return utf8;
}

std::wstring FromUtf8(std::string_view utf8)
{
    std::wstring text;
    while (!utf8.empty())
        AppendWide(text, TakeCode(utf8));
    return text;
}

} // namespace corvane
