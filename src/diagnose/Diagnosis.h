// All that one run of the program has found, and the two views of it.
#pragma once

#include "diagnose/Facts.h"

namespace diagnose
{

struct Machine
{
    std::wstring version; // of this program
    int bits = 0;         // of this program
    std::wstring windows;
    std::wstring build;
};

// What the add-in is told to do, by its settings file and by policy.
struct Configuration
{
    std::wstring settingsFile;
    bool settingsFileExists = false;
    bool traceEnabled = false;
    bool traceByPolicy = false;
    std::int64_t timeoutSeconds = 0; // 0 for none
    bool timeoutByPolicy = false;
    std::vector<std::wstring> offeredServers; // without user names and passwords, as all addresses here
    std::vector<std::wstring> serverRenames;
    bool offeredServersOnly = false;
    bool requiresHttps = false;
    bool allowsClientEvents = true;
    std::vector<std::wstring> parsers; // versions of the platform's XML parser
};

struct LastTrace
{
    std::wstring file;
    std::size_t errors = 0;
    std::wstring lastNumber; // of the last error; empty without one
};

struct Diagnosis
{
    Machine machine;
    std::optional<std::wstring> switchedOn; // what was switched on, where that was asked for
    Facts facts;
    Configuration configuration;
    std::optional<LastTrace> lastTrace;
    std::vector<std::wstring> findings;
};

// The report for a person: a fact a line, the findings at its end.
[[nodiscard]] std::wstring TextOf(const Diagnosis& diagnosis);

// The same for a program: one JSON object, in one line.
[[nodiscard]] std::wstring JsonOf(const Diagnosis& diagnosis);

} // namespace diagnose
