// A run's report as files.
#pragma once

#include "judge/Report.h"

#include <filesystem>

namespace verify
{

// Writes report.txt, report.json and report.html into the folder.
void WriteReports(const std::filesystem::path& folder, const Report& report);

// The date and time here, as "2026-05-04 13:05".
[[nodiscard]] std::string TimeHere();

} // namespace verify
