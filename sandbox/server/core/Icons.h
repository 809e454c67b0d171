#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace server
{

// A GIF of 17 by 17 pixels for "project_offi.gif", "stage_offi.gif" or "gate_offi.gif" in the colours of an icon set;
// nothing for an unknown set or file name.
[[nodiscard]] std::optional<std::string> DrawSetIcon(std::string_view set, std::string_view fileName);

} // namespace server
