// What is kept of a document between its files.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "package/CustomProperty.h"

namespace host
{

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

} // namespace host
