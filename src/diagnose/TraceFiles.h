// The trace files that the add-in has left for this user.
#pragma once

#include "diagnose/Diagnosis.h"
#include "diagnose/TraceRules.h"

namespace diagnose
{

// The user's trace files, the newest first. Other files of their folder are left out.
[[nodiscard]] std::vector<TraceFile> FindTraces();

// The newest trace file; nothing when there is none. Of its text only the error numbers are taken.
[[nodiscard]] std::optional<LastTrace> FindLastTrace();

// The text of a trace file from that place on, in the system's code page, from its first whole line.
[[nodiscard]] std::string ReadTrace(const TraceEnd& end);

struct TraceRemoval
{
    std::size_t removed = 0;
    std::size_t left = 0;
    std::size_t refused = 0; // of those that are left: Windows did not let them go
};

// Deletes the trace files that were last written more than so many days ago.
TraceRemoval RemoveTraces(int days);

} // namespace diagnose
