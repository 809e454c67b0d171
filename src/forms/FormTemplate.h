// Dialog templates: a copy of one that asks for another font.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace corvane
{

// The font that a dialog template asks for; dialog units follow from it.
struct TemplateFont
{
    std::uint16_t pointSize = 8;
    std::uint16_t weight = 400;
    bool italic = false;
    std::uint8_t charset = 1;
    std::u16string face;
};

// A copy of an extended dialog template (DLGTEMPLATEEX) whose font is replaced. An empty result means that the input
// is no extended template with a font.
[[nodiscard]] std::vector<std::byte> WithFont(std::span<const std::byte> dialogTemplate, const TemplateFont& font);

} // namespace corvane
