// OLE property sets. They are read and written here, not by the system: Wine reads no section but the first.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include <windows.h>

#include <objidl.h>

#include "package/CustomProperty.h"

namespace host
{

struct SetProperty
{
    std::uint32_t id = 0;
    CustomProperty property; // unnamed outside the user-defined set

    bool operator==(const SetProperty&) const = default;
};

// One section of an OLE property set stream.
struct PropertySection
{
    FMTID format{};
    std::vector<SetProperty> properties;
};

// Writes the stream; the names of the user-defined set go into its dictionary. Texts are stored as UTF-8.
[[nodiscard]] std::string WritePropertySet(const std::vector<PropertySection>& sections);

// Reads the stream with its properties in the order of their ids. Values of other kinds than a custom property has are
// left out. Throws std::runtime_error when the bytes are cut short.
[[nodiscard]] std::vector<PropertySection> ReadPropertySet(std::string_view bytes);

} // namespace host
