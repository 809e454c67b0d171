// Paths longer than the system's classic limit.
#pragma once

#include <string>

namespace corvane
{

// The form of a full path that the system takes at any length; a shorter or relative one stays as it is.
[[nodiscard]] std::wstring AsLongPath(const std::wstring& path);

} // namespace corvane
