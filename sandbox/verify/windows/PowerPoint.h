// The program in which the scenarios are played in PowerPoint's place: where it is, whether it runs, and what it loads.
#pragma once

#include <filesystem>
#include <string>

namespace verify
{

struct HostProgram
{
    std::filesystem::path file;
    int bits = 0;
    bool isPowerPoint = false;
};

// PowerPoint as it is installed here, or the program of this name. Throws std::runtime_error with the reason where
// there is none, or one that cannot load libraries of the runner's bitness.
[[nodiscard]] HostProgram FindHostProgram(const std::filesystem::path& named);

// Throws std::runtime_error while the program runs or PowerPoint shows a window: a user's open work is never touched.
void RequireNotRunning(const HostProgram& program);

// The add-in's library as it is installed for PowerPoint; empty where it is not.
[[nodiscard]] std::filesystem::path InstalledAddIn();

} // namespace verify
