#include "package/PropertySet.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cstdlib>
#include <cstring>
#include <map>
#include <optional>
#include <stdexcept>

#include "package/Bytes.h"
#include "platform/Utf8.h"

namespace host
{
namespace
{

// Layout of the stream: a header of fixed length, a row for each section, the sections.
constexpr std::uint64_t kByteOrder = 0xFFFE;
constexpr std::size_t kHeaderSize = 28;
constexpr std::size_t kSectionRowSize = 20;
constexpr std::uint64_t kUtf8CodePage = 65001;
constexpr std::uint64_t kUnicodeCodePage = 1200;
constexpr std::uint32_t kDictionaryId = 0;
constexpr std::uint32_t kCodePageId = 1;

enum VariantType : std::uint64_t
{
    kShort = 2,
    kLong = 3,
    kDouble = 5,
    kBoolean = 11,
    kByteText = 30,
    kWideText = 31,
    kFileTime = 64,
};

std::string Padded(std::string bytes)
{
    bytes.resize((bytes.size() + 3) / 4 * 4, '\0');
    return bytes;
}

std::string WriteText(const std::string& text) { return Numbers({{text.size() + 1, 4}}) + text + '\0'; }

std::string WriteValue(const CustomProperty& property)
{
    const auto write = [](VariantType type, std::uint64_t number, std::size_t width) {
        return Padded(Numbers({{type, 4}, {number, width}}));
    };
    switch (property.type) {
    case PropertyType::Number:
        return write(kLong, static_cast<std::uint32_t>(std::strtol(property.value.c_str(), nullptr, 10)), 4);
    case PropertyType::Boolean:
        return write(kBoolean, property.value == "true" ? 0xffff : 0, 2);
    case PropertyType::Float:
        return write(kDouble, std::bit_cast<std::uint64_t>(std::strtod(property.value.c_str(), nullptr)), 8);
    case PropertyType::Date:
        return write(kFileTime, static_cast<std::uint64_t>(ToFileTime(property.value)), 8);
    case PropertyType::Text:
        break;
    }
    return Padded(Numbers({{kByteText, 4}}) + WriteText(property.value));
}

std::string WriteDictionary(const PropertySection& section)
{
    std::string out = Numbers({{section.properties.size(), 4}});
    for (const SetProperty& row : section.properties)
        out += Numbers({{row.id, 4}}) + WriteText(row.property.name);
    return Padded(out);
}

std::string WriteSection(const PropertySection& section)
{
    std::vector<std::pair<std::uint32_t, std::string>> rows;
    if (section.format == FMTID_UserDefinedProperties) rows.emplace_back(kDictionaryId, WriteDictionary(section));
    rows.emplace_back(kCodePageId, Padded(Numbers({{kShort, 4}, {kUtf8CodePage, 2}})));
    for (const SetProperty& row : section.properties)
        rows.emplace_back(row.id, WriteValue(row.property));

    std::string index;
    std::string values;
    const std::size_t valuesAt = 8 + 8 * rows.size();
    for (const auto& [id, value] : rows) {
        index += Numbers({{id, 4}, {valuesAt + values.size(), 4}});
        values += value;
    }
    return Numbers({{valuesAt + values.size(), 4}, {rows.size(), 4}}) + index + values;
}

// Reads one section; offsets in it count from its own start.
class SectionReader
{
public:
    explicit SectionReader(std::string_view bytes) : m_bytes{bytes}
    {
        const std::uint64_t count = Number(4, 4);
        for (std::uint64_t i = 0; i < count; ++i)
            m_index[Number(8 + 8 * i, 4)] = Number(12 + 8 * i, 4);
        if (m_index.contains(kCodePageId)) m_codePage = Number(m_index[kCodePageId] + 4, 2);
    }

    void Read(PropertySection& section)
    {
        const auto names = Names();
        for (const auto& [id, at] : m_index) {
            auto property = id == kDictionaryId || id == kCodePageId ? std::nullopt : ReadValue(at);
            if (!property) continue;
            const auto name = names.find(id);
            if (name != names.end()) property->name = name->second;
            section.properties.push_back({static_cast<std::uint32_t>(id), *property});
        }
    }

private:
    [[nodiscard]] std::uint64_t Number(std::uint64_t at, std::size_t width) const
    {
        return ReadNumber(m_bytes, static_cast<std::size_t>(at), width);
    }

    // Letters of two bytes, or of one in the section's code page; any but UTF-8 is read as Latin-1. A zero ends them.
    [[nodiscard]] std::string Text(std::uint64_t at, std::uint64_t letters, std::size_t width) const
    {
        std::wstring text;
        for (std::uint64_t i = 0; i < letters; ++i)
            text += static_cast<wchar_t>(Number(at + width * i, width));
        text.resize(std::min(text.find(L'\0'), text.size()));
        if (width == 1 && m_codePage == kUtf8CodePage) return {text.begin(), text.end()};
        return corvane::ToUtf8(text);
    }

    [[nodiscard]] std::map<std::uint64_t, std::string> Names() const
    {
        std::map<std::uint64_t, std::string> names;
        const auto dictionary = m_index.find(kDictionaryId);
        if (dictionary == m_index.end()) return names;
        std::uint64_t at = dictionary->second;
        const std::uint64_t count = Number(at, 4);
        at += 4;
        for (std::uint64_t i = 0; i < count; ++i) {
            const std::uint64_t length = Number(at + 4, 4);
            const bool wide = m_codePage == kUnicodeCodePage;
            names[Number(at, 4)] = Text(at + 8, length, wide ? 2 : 1);
            at += 8 + (wide ? (2 * length + 3) / 4 * 4 : length);
        }
        return names;
    }

    // Nothing for a value of a kind that no custom property has.
    [[nodiscard]] std::optional<CustomProperty> ReadValue(std::uint64_t at) const
    {
        const auto given = [](PropertyType type, std::string text) {
            return CustomProperty{{}, type, std::move(text)};
        };
        const std::uint64_t value = at + 4;
        switch (Number(at, 2)) {
        case kShort:
            return given(PropertyType::Number, std::to_string(static_cast<std::int16_t>(Number(value, 2))));
        case kLong:
            return given(PropertyType::Number, std::to_string(static_cast<std::int32_t>(Number(value, 4))));
        case kBoolean:
            return given(PropertyType::Boolean, Number(value, 2) != 0 ? "true" : "false");
        case kDouble:
            return given(PropertyType::Float, FloatText(std::bit_cast<double>(Number(value, 8))));
        case kFileTime:
            return given(PropertyType::Date, FromFileTime(static_cast<std::int64_t>(Number(value, 8))));
        case kByteText:
            return given(PropertyType::Text, Text(value + 4, Number(value, 4), 1));
        case kWideText:
            return given(PropertyType::Text, Text(value + 4, Number(value, 4), 2));
        default:
            return std::nullopt;
        }
    }

    [[nodiscard]] static std::string FloatText(double number)
    {
        char text[64];
        const auto end = std::to_chars(text, text + sizeof text, number).ptr;
        return {text, end};
    }

    std::string_view m_bytes;
    std::map<std::uint64_t, std::uint64_t> m_index; // places by ids
    std::uint64_t m_codePage = 0;
};

} // namespace

std::string WritePropertySet(const std::vector<PropertySection>& sections)
{
    constexpr std::uint64_t kWindows = 0x00020005; // the system that wrote it
    std::string out = Numbers({{kByteOrder, 2}, {0, 2}, {kWindows, 4}, {0, 16}, {sections.size(), 4}});
    std::string bodies;
    const std::size_t bodiesAt = kHeaderSize + kSectionRowSize * sections.size();
    for (const PropertySection& section : sections) {
        out.append(reinterpret_cast<const char*>(&section.format), sizeof section.format);
        AppendNumber(out, bodiesAt + bodies.size(), 4);
        bodies += WriteSection(section);
    }
    return out + bodies;
}

std::vector<PropertySection> ReadPropertySet(std::string_view bytes)
{
    if (ReadNumber(bytes, 0, 2) != kByteOrder) throw std::runtime_error{"this is no property set"};
    const std::uint64_t count = ReadNumber(bytes, kHeaderSize - 4, 4);
    std::vector<PropertySection> sections;
    for (std::uint64_t i = 0; i < count; ++i) {
        const std::size_t row = kHeaderSize + kSectionRowSize * static_cast<std::size_t>(i);
        PropertySection section;
        std::memcpy(&section.format, Slice(bytes, row, sizeof section.format).data(), sizeof section.format);
        const auto at = ReadNumber<std::size_t>(bytes, row + sizeof section.format, 4);
        const auto size = ReadNumber<std::size_t>(bytes, at, 4);
        SectionReader{Slice(bytes, at, size)}.Read(section);
        sections.push_back(std::move(section));
    }
    return sections;
}

} // namespace host
