// What scenarios want that a Windows PC may lack.
#pragma once

#include "judge/Scenario.h"

#include <string>

namespace verify
{

// Why this PC, with what is installed on it and what its user may do, cannot play the scenario; empty: it can.
[[nodiscard]] std::string LackFor(const Scenario& scenario);

} // namespace verify
