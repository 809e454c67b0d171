#include "core/Fields.h"

#include "core/ServiceError.h"
#include "core/Text.h"

#include <algorithm>
#include <charconv>

namespace server
{

namespace
{

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
