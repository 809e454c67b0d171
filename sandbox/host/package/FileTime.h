// The date text of packages, "2024-05-01T10:00:00Z", and the system's times.
#pragma once

#include <windows.h>

#include <cstdint>
#include <optional>
#include <string>

namespace host
{

// Nothing where the text is no date.
[[nodiscard]] std::optional<SYSTEMTIME> ToSystemTime(const std::string& text);
[[nodiscard]] std::string FromSystemTime(const SYSTEMTIME& time);

// File times are steps of 100 ns since 1601; 0 where the text is no date.
[[nodiscard]] std::int64_t ToFileTime(const std::string& text);
[[nodiscard]] std::string FromFileTime(std::int64_t steps);

} // namespace host
