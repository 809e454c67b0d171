// What every benchmark measures with, and how it tells its figures.
#pragma once

#include <windows.h>

#include <ole2.h>

#include <chrono>
#include <cstdio>
#include <psapi.h>

namespace bench
{

// Milliseconds since it was made.
class Stopwatch
{
public:
    [[nodiscard]] double Milliseconds() const
    {
        return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - m_start).count();
    }

private:
    std::chrono::steady_clock::time_point m_start = std::chrono::steady_clock::now();
};

// One figure for the script that runs the benchmarks.
inline void Tell(const char* name, double value)
{
    std::printf("%s %.6f\n", name, value);
    std::fflush(stdout);
}

// The most memory that the process has held at once, in MiB.
inline double PeakMemory()
{
    PROCESS_MEMORY_COUNTERS counters{};
    ::K32GetProcessMemoryInfo(::GetCurrentProcess(), &counters, sizeof counters);
    return static_cast<double>(counters.PeakWorkingSetSize) / (1024.0 * 1024.0);
}

// The time in milliseconds that the process has used of a processor.
inline double ProcessorTime()
{
    FILETIME begin{};
    FILETIME end{};
    FILETIME kernel{};
    FILETIME user{};
    ::GetProcessTimes(::GetCurrentProcess(), &begin, &end, &kernel, &user);
    constexpr double kHigh = 4294967296.0;
    constexpr double kTicksPerMillisecond = 10000.0;
    return (kHigh * (kernel.dwHighDateTime + user.dwHighDateTime) + kernel.dwLowDateTime + user.dwLowDateTime) /
           kTicksPerMillisecond;
}

// COM for the thread.
class Apartment
{
public:
    Apartment() { ::OleInitialize(nullptr); }
    ~Apartment() { ::OleUninitialize(); }
    Apartment(const Apartment&) = delete;
    Apartment& operator=(const Apartment&) = delete;
};

} // namespace bench
