// The pictures of the projects' trees, one for each kind of node in every icon set.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace server
{

// The GIF of that name ("project_offi.gif", "stage_offi.gif" or "gate_offi.gif") in an icon set; nothing for an unknown
// set or file name.
[[nodiscard]] std::optional<std::string> SetIcon(const std::string& set, std::string_view fileName);

} // namespace server
