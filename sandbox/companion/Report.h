// What the player tells, as a file.
#pragma once

#include <fstream>
#include <mutex>
#include <string>

namespace corvane::companion
{

// Writes line by line in UTF-8, so that all is there when the process ends at once. Any thread.
//
// The last line is the verdict: "scenario passed: FILE (N steps, 64-bit)", "scenario failed: FILE" behind what went
// wrong, or "not for this host: STEP: WHY" of a scenario of which nothing was played.
class Report
{
public:
    explicit Report(const std::wstring& folder); // the file of an earlier playing is replaced

    void Tell(const std::wstring& line);

private:
    std::mutex m_mutex;
    std::ofstream m_file;
};

} // namespace corvane::companion
