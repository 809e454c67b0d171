// The archive that is handed to the support.
#pragma once

#include "diagnose/Diagnosis.h"

namespace diagnose
{

// Writes a zip archive with the report, the settings file, the policies' values and the newest traces, in all of which
// user names and passwords are masked. Replaces a file of that name; throws Error.
void WriteHandover(const std::wstring& file, const Diagnosis& diagnosis);

} // namespace diagnose
