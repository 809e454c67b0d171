// What a scenario's tail can ask of the server, of the files and of the host's trace.
#pragma once

#include "judge/Outcome.h"
#include "judge/Scenario.h"

#include <string>
#include <vector>

namespace verify
{

// Makes the scenario's checks in their order. Returns what they measured, and which could not be made here. Throws
// Failure, or what a parser throws, with the first that does not hold.
std::vector<std::string> Check(const Scenario& scenario, const Outcome& outcome);

} // namespace verify
