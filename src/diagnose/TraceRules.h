// Which trace files count, and how much of them.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace diagnose
{

struct TraceFile
{
    std::wstring name;
    std::uint64_t size = 0;
    std::uint64_t written = 0; // when, in units of 100 ns
};

// A trace file from a place in it to its end.
struct TraceEnd
{
    TraceFile file;
    std::uint64_t from = 0;
};

inline constexpr std::size_t kMostTraces = 10;
inline constexpr std::uint64_t kMostTraceBytes = std::uint64_t{20} << 20U;

// What is handed on of these files, which come newest first: so many as the limits above allow, of the last of them the
// end.
[[nodiscard]] std::vector<TraceEnd> TracesToHandOn(const std::vector<TraceFile>& files);

// Whether a file was last written more than so many days before a time.
[[nodiscard]] bool IsOlder(const TraceFile& file, int days, std::uint64_t now) noexcept;

// The text without its first line, which its reader has cut somewhere.
[[nodiscard]] std::string WithoutCutLine(std::string text);

} // namespace diagnose
