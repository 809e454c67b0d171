// What this process holds of the system.
#pragma once

#include <cstddef>
#include <string>

namespace corvane::player
{

struct Usage
{
    std::size_t kilobytes = 0; // of memory that no other process shares
    std::size_t handles = 0;   // of the kernel
    std::size_t gdi = 0;       // pens, brushes, fonts, bitmaps ...
    std::size_t windows = 0;   // with those that are never shown
};

// Counts what this process holds now. May take a tenth of a second.
[[nodiscard]] Usage MeasureUsage();

[[nodiscard]] std::wstring DescribeUsage(const Usage& usage);

// Whether what is held now has not grown beyond what a cache or a thread of the system explains.
[[nodiscard]] bool IsLevel(const Usage& before, const Usage& now);

} // namespace corvane::player
