// Which scenarios a host can play by its object model alone.
#pragma once

#include <string>

#include "player/Script.h"

namespace corvane::companion
{

// What of a scenario only a stand-in can do, as "STEP: WHY"; empty where all of it can be played. The settings are
// those of the errand; the version is the host's.
[[nodiscard]] std::wstring FindMisfit(const std::vector<player::Step>& steps, const player::Settings& settings,
                                      int hostVersion);

} // namespace corvane::companion
