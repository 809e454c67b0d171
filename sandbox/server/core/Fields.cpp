#include "core/Fields.h"

#include "core/Http.h"
#include "core/ServiceError.h"

#include <charconv>
#include <cstdint>

namespace server
{

namespace
{

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

// Length of the valid multi-byte sequence at this place, 0 when there is none.
std::size_t SequenceLength(std::string_view bytes, std::size_t at)
{
    const auto lead = Byte(bytes, at);
    const std::size_t length = Within(lead, 0xC2, 0xDF)   ? 2
                               : Within(lead, 0xE0, 0xEF) ? 3
                               : Within(lead, 0xF0, 0xF4) ? 4
                                                          : 0;
    if (length == 0 || !SecondByteFits(lead, Byte(bytes, at + 1))) return 0;
    for (std::size_t i = 2; i < length; ++i)
        if (!Within(Byte(bytes, at + i), 0x80, 0xBF)) return 0;
    return length;
}

bool HexPair(std::string_view text, std::size_t at, char& out)
{
    if (at + 2 > text.size()) return false;
    unsigned value = 0;
    const char* end = text.data() + at + 2;
    if (std::from_chars(text.data() + at, end, value, 16).ptr != end) return false;
    out = static_cast<char>(value);
    return true;
}

std::string NameOf(int position)
{
    std::string name{'P'};
    return name += std::to_string(2 * position);
}

} // namespace

std::string ToUtf8(std::string_view bytes)
{
    std::string text;
    for (std::size_t at = 0; at < bytes.size();) {
        const auto byte = Byte(bytes, at);
        const auto length = byte < 0x80 ? 1 : SequenceLength(bytes, at);
        if (length > 0) {
            text += bytes.substr(at, length);
        } else {
            text += static_cast<char>(0xC0 | (byte >> 6));
            text += static_cast<char>(0x80 | (byte & 0x3F));
        }
        at += length > 0 ? length : 1;
    }
    return text;
}

std::string DecodeText(std::string_view encoded)
{
    std::string bytes;
    for (std::size_t at = 0; at < encoded.size(); ++at) {
        char decoded = encoded[at] == '+' ? ' ' : encoded[at];
        if (encoded[at] == '%' && HexPair(encoded, at + 1, decoded)) at += 2;
        bytes += decoded;
    }
    return ToUtf8(bytes);
}

Fields DecodeFields(std::string_view encoded)
{
    Fields fields;
    while (!encoded.empty()) {
        const auto pair = encoded.substr(0, encoded.find('&'));
        encoded.remove_prefix(std::min(encoded.size(), pair.size() + 1));
        const auto equals = std::min(pair.find('='), pair.size());
        if (!pair.empty())
            fields.emplace(DecodeText(pair.substr(0, equals)),
                           DecodeText(pair.substr(std::min(equals + 1, pair.size()))));
    }
    return fields;
}

const std::string& Parameters::Text(int position) const
{
    const auto name = NameOf(position);
    const auto found = m_fields.find(name);
    if (found == m_fields.end())
        throw ServiceError{ErrorNumber::InvalidRequest, m_operation, "Parameter " + name + " is missing."};
    return found->second;
}

int Parameters::Number(int position) const
{
    const auto& text = Text(position);
    int value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc{} || end != text.data() + text.size())
        throw ServiceError{ErrorNumber::InvalidRequest, m_operation,
                           "Parameter " + NameOf(position) + " is not a number: '" + text + "'."};
    return value;
}

bool Parameters::Truth(int position) const
{
    const auto& text = Text(position);
    return EqualNoCase(text, "True") || (!EqualNoCase(text, "False") && Number(position) != 0);
}

} // namespace server
