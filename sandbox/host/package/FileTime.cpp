#include "package/FileTime.h"

#include <cstdio>

namespace host
{

std::optional<SYSTEMTIME> ToSystemTime(const std::string& text)
{
    SYSTEMTIME time{};
    const int fields = std::sscanf(text.c_str(), "%hu-%hu-%huT%hu:%hu:%hu", &time.wYear, &time.wMonth, &time.wDay,
                                   &time.wHour, &time.wMinute, &time.wSecond);
    return fields < 3 ? std::nullopt : std::optional{time};
}

std::string FromSystemTime(const SYSTEMTIME& time)
{
    char text[64];
    std::snprintf(text, sizeof text, "%04hu-%02hu-%02huT%02hu:%02hu:%02huZ", time.wYear, time.wMonth, time.wDay,
                  time.wHour, time.wMinute, time.wSecond);
    return text;
}

std::int64_t ToFileTime(const std::string& text)
{
    FILETIME steps{};
    if (const auto time = ToSystemTime(text)) ::SystemTimeToFileTime(&*time, &steps);
    return static_cast<std::int64_t>(std::uint64_t{steps.dwHighDateTime} << 32 | steps.dwLowDateTime);
}

std::string FromFileTime(std::int64_t steps)
{
    const auto bits = static_cast<std::uint64_t>(steps);
    const FILETIME file{static_cast<DWORD>(bits), static_cast<DWORD>(bits >> 32)};
    SYSTEMTIME time{};
    ::FileTimeToSystemTime(&file, &time);
    return FromSystemTime(time);
}

} // namespace host
