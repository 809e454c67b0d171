// A zip archive, as Windows' own shell opens it.
#pragma once

#include "support/TraceText.h"

#include <string>
#include <vector>

namespace diagnose
{

struct ArchivedFile
{
    std::string name; // UTF-8, with "/" between folders
    std::string data;
    corvane::LocalTime written{};
};

// The archive's bytes: every file as it is, without compression. All files together are well below 4 GiB.
[[nodiscard]] std::string ZipArchive(const std::vector<ArchivedFile>& files);

} // namespace diagnose
