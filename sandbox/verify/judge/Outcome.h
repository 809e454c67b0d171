// What a play of a scenario has left behind.
#pragma once

#include "judge/Request.h"

#include <functional>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <vector>

namespace verify
{

// What the host had used of the processor by then, both in seconds.
struct ProcessorNote
{
    double time = 0; // since 1970
    double used = 0;
};

// Texts are UTF-8, files and traces are bytes.
struct Outcome
{
    std::string server; // its address
    std::vector<Request> requests;
    nlohmann::json versions = nlohmann::json::array();
    std::vector<std::string> traces;
    std::vector<ProcessorNote> processor;

    // A file of the scenario's folder; nothing where there is none.
    std::function<std::optional<std::string>(const std::string& name)> file;

    // What is wrong with the ribbon by the grammar of an edition, or an empty text; nothing where no grammar can be
    // asked.
    std::function<std::optional<std::string>(const std::string& edition)> ribbonFaults;
};

} // namespace verify
