// Plays scenarios in PowerPoint, or in any program in its place, through nothing but the player's library.
#pragma once

#include "judge/Report.h"
#include "machine/Playing.h"

#include <filesystem>
#include <vector>

namespace verify
{

// Plays those of the scenarios that such a host can play, one after the other, each in a fresh one, in PowerPoint as it
// is installed here or in the program that is named. The add-in is the installed one, else that of the runner's folder,
// which is registered for as long as it takes. Throws std::runtime_error where PowerPoint is open or cannot be played
// in.
[[nodiscard]] Report PlayInPowerPoint(const std::filesystem::path& home, const std::filesystem::path& named,
                                      RunPlan plan, const std::vector<Scenario>& scenarios);

} // namespace verify
