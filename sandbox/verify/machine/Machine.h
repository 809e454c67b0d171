// Where scenarios are played, one after the other.
#pragma once

#include "judge/Outcome.h"
#include "judge/Scenario.h"

#include <chrono>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace verify
{

// A play of the host.
struct Play
{
    const Scenario& scenario;
    std::filesystem::path folder;                 // the scenario's own; "documents" in it is the user's folder
    std::vector<std::string> settings;            // NAME=VALUE
    std::optional<std::chrono::seconds> patience; // none: for ever
    bool byCompanion = false;                     // the player's library plays; the host is not told to
    bool foreign = false;                         // nor anything else: it is not the stand-in
};

struct Played
{
    std::optional<int> status; // nothing where the host did not end in time
    std::string left{};        // why a host that is not the stand-in was left running; empty: it was not
    std::string printed{};
    std::vector<ProcessorNote> processor{}; // while the scenario wants to know
};

// What differs by system: how a host is started, by which user, and what it leaves.
class Machine
{
public:
    virtual ~Machine() = default;

    // Why the scenario cannot be played here; empty where it can.
    [[nodiscard]] virtual std::string Refuses(const Scenario& scenario) const = 0;

    // A path as the host knows it.
    [[nodiscard]] virtual std::string HostPath(const std::filesystem::path& path) const = 0;

    // Gives the user a fresh profile: documents in this folder of a scenario, and these values of the registry, each
    // written "KEY NAME=TEXT" or "KEY NAME=dword:HEX".
    virtual void Reset(const std::filesystem::path& folder, const std::vector<std::string>& values) = 0;

    // Runs the host until it ends; one that does not is ended, unless it is not the stand-in.
    [[nodiscard]] virtual Played Run(const Play& play) = 0;

    // What the add-in has left in the user's profile.
    [[nodiscard]] virtual std::vector<std::filesystem::path> TemporaryFiles() const = 0;
    [[nodiscard]] virtual std::vector<std::filesystem::path> Traces() const = 0;

    // As Outcome::ribbonFaults, of the ribbon in this folder.
    [[nodiscard]] virtual std::optional<std::string> RibbonFaults(const std::filesystem::path& folder,
                                                                  const std::string& edition) const = 0;
};

} // namespace verify
