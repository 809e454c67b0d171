#include "package/FileTime.h"

#include <chrono>
#include <cstdio>

namespace host
{
namespace
{

using FileTimeSteps = std::chrono::duration<std::int64_t, std::ratio<1, 10'000'000>>;
constexpr std::chrono::seconds kFrom1601To1970{11'644'473'600};

} // namespace

std::int64_t ToFileTime(const std::string& text)
{
    int year = 0;
    unsigned month = 1;
    unsigned day = 1;
    int hour = 0;
    int minute = 0;
    int second = 0;
    std::sscanf(text.c_str(), "%d-%u-%uT%d:%d:%d", &year, &month, &day, &hour, &minute, &second);
    const std::chrono::sys_days date{std::chrono::year{year} / std::chrono::month{month} / std::chrono::day{day}};
    const std::chrono::seconds time =
        std::chrono::hours{hour} + std::chrono::minutes{minute} + std::chrono::seconds{second};
    return std::chrono::duration_cast<FileTimeSteps>(date.time_since_epoch() + time + kFrom1601To1970).count();
}

std::string FromFileTime(std::int64_t steps)
{
    const auto since1970 = std::chrono::duration_cast<std::chrono::seconds>(FileTimeSteps{steps}) - kFrom1601To1970;
    const auto days = std::chrono::floor<std::chrono::days>(since1970);
    const std::chrono::year_month_day date{std::chrono::sys_days{days}};
    const std::chrono::hh_mm_ss time{since1970 - days};
    char text[64];
    std::snprintf(text, sizeof text, "%04d-%02u-%02uT%02d:%02d:%02dZ", static_cast<int>(date.year()),
                  static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()),
                  static_cast<int>(time.hours().count()), static_cast<int>(time.minutes().count()),
                  static_cast<int>(time.seconds().count()));
    return text;
}

} // namespace host
