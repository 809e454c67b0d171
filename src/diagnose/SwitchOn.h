// The add-in switched on again for the user who runs the program.
#pragma once

#include "diagnose/Facts.h"

namespace diagnose
{

// Undoes in the user's registry what keeps the add-in off, reads the facts about it anew and returns what was undone,
// as one line.
[[nodiscard]] std::wstring SwitchOn(Facts& facts);

} // namespace diagnose
