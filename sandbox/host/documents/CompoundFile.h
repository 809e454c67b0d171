#pragma once

#include <string>
#include <vector>

#include "package/CustomProperty.h"

namespace host
{

// What a version 11 presentation carries: its summary (by the names of Office's built-in properties) and its custom
// properties. The slides themselves are not written: the stand-in shows the title only.
struct CompoundContents
{
    std::vector<CustomProperty> summary;
    std::vector<CustomProperty> custom;
};

[[nodiscard]] bool IsCompoundFile(const std::string& bytes);

// Both throw AutomationError when the storage fails.
[[nodiscard]] CompoundContents ReadCompoundFile(const std::string& bytes);
[[nodiscard]] std::string WriteCompoundFile(const CompoundContents& contents);

} // namespace host
