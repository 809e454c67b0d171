// Which scenarios can be played in a host that takes no orders.
#pragma once

#include "judge/Scenario.h"

#include <string>

namespace verify
{

// Why the scenario's head keeps it out of a host that is not the stand-in; empty where nothing does. What its steps
// want is for the player to judge. The settings of an add-in that was installed before are not changed.
[[nodiscard]] std::string WhyNotInForeignHost(const Scenario& scenario, bool addInIsInstalled);

} // namespace verify
