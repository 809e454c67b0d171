// What is taken for an icon of the tree.
#pragma once

#include <cstddef>
#include <span>

namespace corvane
{

// Whether the bytes are a GIF picture of which no side, and no side of any image in it, is 0 or above 256 pixels. What
// a server sends is asked this before anything of the system decodes it.
[[nodiscard]] bool IsIcon(std::span<const std::byte> bytes) noexcept;

} // namespace corvane
