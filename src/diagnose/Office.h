// PowerPoint as it is installed, and what it and its policies keep about the add-in.
#pragma once

#include "diagnose/Facts.h"

namespace diagnose
{

[[nodiscard]] PowerPoint FindPowerPoint();

// Entries about the add-in in PowerPoint's lists of disabled, crashed and watched add-ins and in Office's policies.
[[nodiscard]] std::vector<OfficeEntry> FindOfficeEntries();

} // namespace diagnose
