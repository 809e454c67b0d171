// How long an add-in took to be loaded, by what a host prints or the add-in traces.
#pragma once

#include <string>
#include <vector>

namespace verify
{

// What the hosts of a run have left: "2 to 5 ms in 3 starts" where they print how long they took to connect the add-in,
// else "at most 1 s in 3 starts", since a trace counts in seconds; without either "not told".
[[nodiscard]] std::string LoadTimesText(const std::vector<std::string>& printed,
                                        const std::vector<std::string>& traces);

} // namespace verify
