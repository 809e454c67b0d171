// How a host is started for a play.
#pragma once

#include "machine/Machine.h"

#include <map>
#include <string>
#include <vector>

namespace verify
{

struct Order
{
    std::vector<std::string> words;              // of the host's command line, behind its name
    std::map<std::string, std::string> settings; // added to its environment
};

[[nodiscard]] Order OrderOf(const Machine& machine, const Play& play);

// What the player's library has reported; empty where it did not play.
[[nodiscard]] std::string ReportedBy(const Play& play);

// What a report says behind these words of the agreement, to the end of the line; empty where they are not there.
[[nodiscard]] std::string ReportedBehind(const std::string& report, const wchar_t* words);

} // namespace verify
