// What the head of a Windows program or library tells.
#pragma once

#include <cstddef>
#include <span>

namespace diagnose
{

// The bitness that a file's first bytes declare: 32 or 64, or 0 when they tell neither.
[[nodiscard]] int ProgramBits(std::span<const std::byte> head) noexcept;

} // namespace diagnose
