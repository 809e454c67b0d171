// Plays scenarios and judges what came of them.
#pragma once

#include "judge/Report.h"
#include "judge/Scenario.h"
#include "machine/Machine.h"

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace verify
{

// What all scenarios of a run have in common.
struct RunPlan
{
    std::filesystem::path server; // the program
    std::filesystem::path out;    // receives a folder for each scenario
    int bits = 64;                // of the host
    std::vector<std::string> settings{};
    std::filesystem::path companion{}; // the player's library; empty where there is none
    bool byCompanion = false;          // it plays all scenarios, not only those that ask for it
    bool foreign = false;              // in a host that takes no orders and prints nothing
};

// Plays the scenario against a fresh server by a user with a fresh profile, and checks it.
[[nodiscard]] Result PlayScenario(Machine& machine, const Scenario& scenario, const RunPlan& plan);

using Machines = std::vector<std::unique_ptr<Machine>>;

// Each machine takes from what is left of the scenarios, in their order, until none is left or the user stops. The
// results in the order in which they came; each is told when it comes.
[[nodiscard]] std::vector<Result> PlayAll(const Machines& machines, const std::vector<Scenario>& scenarios,
                                          const RunPlan& plan);

} // namespace verify
