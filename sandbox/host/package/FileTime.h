#pragma once

#include <cstdint>
#include <string>

namespace host
{

// A package's date text, "2024-05-01T10:00:00Z", to and from a file time: steps of 100 ns since 1601.
[[nodiscard]] std::int64_t ToFileTime(const std::string& text);
[[nodiscard]] std::string FromFileTime(std::int64_t steps);

} // namespace host
