// What is taken for an icon begins as one, and has no side above 256 pixels.
#include "selection/IconRules.h"
#include "Input.h"

#include <span>

void Fuzz(Input& input)
{
    const std::string rest = input.RestAsBytes();
    for (const std::string& bytes : {rest, "GIF89a" + rest}) {
        if (!corvane::IsIcon(std::as_bytes(std::span{bytes}))) continue;
        Require(bytes.starts_with("GIF8") && bytes.size() > 13);
        for (const std::size_t side : {6U, 8U}) {
            const auto low = static_cast<unsigned char>(bytes[side]);
            const auto high = static_cast<unsigned char>(bytes[side + 1]);
            Require(high == 0 ? low > 0 : high == 1 && low == 0);
        }
    }
}
