// Properties of a document.
#pragma once

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

} // namespace host
