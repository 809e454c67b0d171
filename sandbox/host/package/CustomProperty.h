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
};

// Reads the custom properties part. Throws std::runtime_error when it is not well formed.
[[nodiscard]] std::vector<CustomProperty> ReadCustomProperties(std::string_view part);

[[nodiscard]] std::string WriteCustomProperties(const std::vector<CustomProperty>& properties);

} // namespace host
