#include "core/Text.h"

#include "platform/Utf8.h"

#include <algorithm>
#include <cstdint>

namespace server
{

namespace
{

char Lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

bool SameLetter(char left, char right) { return Lower(left) == Lower(right); }

// Latin-1 capitals are C3 80 to C3 9E in UTF-8, all but the multiplication sign C3 97.
std::string LowerText(std::string_view text)
{
    std::string lower{text};
    for (std::size_t at = 0; at < lower.size(); ++at) {
        const auto byte = static_cast<unsigned char>(lower[at]);
        const bool capital = at > 0 && lower[at - 1] == '\xC3' && byte >= 0x80 && byte <= 0x9E && byte != 0x97;
        lower[at] = capital ? static_cast<char>(byte + 0x20) : Lower(lower[at]);
    }
    return lower;
}

std::uint8_t Byte(std::string_view text, std::size_t at)
{
    return at < text.size() ? static_cast<std::uint8_t>(text[at]) : std::uint8_t{0};
}

bool Within(std::uint8_t value, int low, int high) { return value >= low && value <= high; }

// The smallest and largest second byte, which rule out overlong forms, surrogates and values past U+10FFFF.
bool SecondByteFits(std::uint8_t lead, std::uint8_t second)
{
    switch (lead) {
    case 0xE0:
        return Within(second, 0xA0, 0xBF);
    case 0xED:
        return Within(second, 0x80, 0x9F);
    case 0xF0:
        return Within(second, 0x90, 0xBF);
    case 0xF4:
        return Within(second, 0x80, 0x8F);
    default:
        return Within(second, 0x80, 0xBF);
    }
}

// Length of the valid multi-byte sequence at the start, 0 when there is none.
std::size_t SequenceLength(std::string_view bytes)
{
    const auto lead = Byte(bytes, 0);
    const std::size_t length = Within(lead, 0xC2, 0xDF)   ? 2
                               : Within(lead, 0xE0, 0xEF) ? 3
                               : Within(lead, 0xF0, 0xF4) ? 4
                                                          : 0;
    if (length == 0 || !SecondByteFits(lead, Byte(bytes, 1))) return 0;
    for (std::size_t i = 2; i < length; ++i)
        if (!Within(Byte(bytes, i), 0x80, 0xBF)) return 0;
    return length;
}

} // namespace

std::string Latin1ToUtf8(std::string_view bytes)
{
    std::string text;
    for (const char c : bytes)
        corvane::AppendUtf8(text, static_cast<std::uint8_t>(c));
    return text;
}

std::string ToUtf8(std::string_view bytes)
{
    std::string text;
    while (!bytes.empty()) {
        const auto length = SequenceLength(bytes);
        if (length > 0)
            text += bytes.substr(0, length);
        else
            corvane::AppendUtf8(text, Byte(bytes, 0));
        bytes.remove_prefix(std::max<std::size_t>(length, 1));
    }
    return text;
}

bool EqualNoCase(std::string_view left, std::string_view right) { return std::ranges::equal(left, right, SameLetter); }

bool ContainsNoCase(std::string_view text, std::string_view part)
{
    return LowerText(text).find(LowerText(part)) != std::string::npos;
}

} // namespace server
