// What the add-in of this machine is told to do.
#pragma once

#include "diagnose/Diagnosis.h"

namespace diagnose
{

// The settings file beside the first library that is there, and what policies say.
[[nodiscard]] Configuration ReadConfiguration(const Facts& facts);

// Every value of the add-in's policies, a line each; passwords in addresses are masked.
[[nodiscard]] std::wstring PolicyText();

} // namespace diagnose
