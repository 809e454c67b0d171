// Properties of a document, and the dates among them.
#pragma once

#include <windows.h>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace host
{

// The numbers of Office's document property types.
enum class PropertyType
{
    Number = 1,
    Boolean = 2,
    Date = 3,
    Text = 4,
    Float = 5,
};

// A custom document property. The value is its text in the package: "12", "true", "1.5", "2024-05-01T10:00:00Z".
struct CustomProperty
{
    std::string name;
    PropertyType type = PropertyType::Text;
    std::string value;

    bool operator==(const CustomProperty&) const = default;
};

// What every format keeps of a document: its built-in properties, all of them texts, and its custom properties.
struct DocumentContents
{
    std::vector<CustomProperty> builtIn;
    std::vector<CustomProperty> custom;

    // A built-in property's text; empty when the document has no such property.
    [[nodiscard]] std::string BuiltIn(std::string_view name) const
    {
        for (const CustomProperty& property : builtIn)
            if (property.name == name) return property.value;
        return {};
    }
};

// Reads the custom properties part. Throws std::runtime_error when it is not well formed.
[[nodiscard]] std::vector<CustomProperty> ReadCustomProperties(std::string_view part);

[[nodiscard]] std::string WriteCustomProperties(const std::vector<CustomProperty>& properties);

// A date's text, "2024-05-01T10:00:00Z", and the system's times; nothing where the text is no date.
[[nodiscard]] std::optional<SYSTEMTIME> ToSystemTime(const std::string& text);
[[nodiscard]] std::string FromSystemTime(const SYSTEMTIME& time);

// File times are steps of 100 ns since 1601; 0 where the text is no date.
[[nodiscard]] std::int64_t ToFileTime(const std::string& text);
[[nodiscard]] std::string FromFileTime(std::int64_t steps);

} // namespace host
