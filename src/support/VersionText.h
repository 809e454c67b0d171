// The version as the About box shows it.
#pragma once

#include <string>

namespace corvane
{

// "Version 8.50.100": major, minor with at least two digits, revision.
[[nodiscard]] std::wstring VersionText(int major, int minor, int revision);

} // namespace corvane
