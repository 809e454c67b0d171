// OLE property sets. They are read and written here, not by the system: Wine reads no section but the first.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "package/CustomProperty.h"

namespace host
{

using FormatId = std::array<std::uint8_t, 16>; // as it stands in the stream

// F29F85E0-4FF9-1068-AB91-08002B27B3D9
constexpr FormatId kSummarySet{0xE0, 0x85, 0x9F, 0xF2, 0xF9, 0x4F, 0x68, 0x10,
                               0xAB, 0x91, 0x08, 0x00, 0x2B, 0x27, 0xB3, 0xD9};
// D5CDD502-2E9C-101B-9397-08002B2CF9AE
constexpr FormatId kDocumentSummarySet{0x02, 0xD5, 0xCD, 0xD5, 0x9C, 0x2E, 0x1B, 0x10,
                                       0x93, 0x97, 0x08, 0x00, 0x2B, 0x2C, 0xF9, 0xAE};
// D5CDD505-2E9C-101B-9397-08002B2CF9AE
constexpr FormatId kUserDefinedSet{0x05, 0xD5, 0xCD, 0xD5, 0x9C, 0x2E, 0x1B, 0x10,
                                   0x93, 0x97, 0x08, 0x00, 0x2B, 0x2C, 0xF9, 0xAE};

struct SetProperty
{
    std::uint32_t id = 0;
    CustomProperty property; // unnamed outside the user-defined set

    bool operator==(const SetProperty&) const = default;
};

// One section of an OLE property set stream.
struct PropertySection
{
    FormatId format{};
    std::vector<SetProperty> properties;
};

// Writes the stream; the names of the user-defined set go into its dictionary. Texts are stored as UTF-8.
[[nodiscard]] std::string WritePropertySet(const std::vector<PropertySection>& sections);

// Reads the stream with its properties in the order of their ids. Values of other kinds than a custom property has are
// left out. Throws std::runtime_error when the bytes are cut short.
[[nodiscard]] std::vector<PropertySection> ReadPropertySet(std::string_view bytes);

} // namespace host
