// What is in the XML of saved documents and of ribbons.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace verify
{

struct CustomProperty
{
    std::string name;
    std::string type; // "lpwstr", "i4" ...
    std::string value;

    bool operator==(const CustomProperty&) const = default;
};

// The custom properties of a document, in their order. Throws Failure where it is no sound archive.
[[nodiscard]] std::vector<CustomProperty> CustomProperties(const std::string& name, std::string_view bytes);

// The labels, then the tips, of each element of a ribbon that has some, in their order.
[[nodiscard]] std::vector<std::string> RibbonTexts(std::string_view xml);

} // namespace verify
