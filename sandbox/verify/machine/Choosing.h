// Which scenarios are played, in which order.
#pragma once

#include "judge/Scenario.h"

#include <filesystem>
#include <string>
#include <vector>

namespace verify
{

struct Choice
{
    std::vector<Scenario> scenarios;
    std::vector<std::string> unknown; // names that nothing has
};

// Those of these names, or all that lie right in the folders. A name is that of a scenario or of a folder of scenarios,
// in one of the folders, or a path to either. The one that repeats its steps comes first, because it takes longest.
[[nodiscard]] Choice Choose(const std::vector<std::filesystem::path>& folders, const std::vector<std::string>& names);

} // namespace verify
