#include "core/Dates.h"

#include <array>
#include <cstdio>
#include <ctime>
#include <optional>

namespace server
{

namespace
{

struct Moment
{
    int year = 0, month = 0, day = 0, hour = 0, minute = 0, second = 0;
};

std::optional<Moment> Parse(std::string_view localTime)
{
    Moment at;
    const std::string text{localTime};
    const int read = std::sscanf(text.c_str(), "%4d-%2d-%2dT%2d:%2d:%2d", &at.year, &at.month, &at.day, &at.hour,
                                 &at.minute, &at.second);
    return read == 6 ? std::optional{at} : std::nullopt;
}

template<class... Values>
std::string Format(const char* layout, Values... values)
{
    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), layout, values...);
    return text.data();
}

} // namespace

std::string LocalTime()
{
    const auto now = std::time(nullptr);
    const std::tm local = *std::localtime(&now);
    return Format("%04d-%02d-%02dT%02d:%02d:%02d", local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour,
                  local.tm_min, local.tm_sec);
}

std::string ShortDate(std::string_view localTime)
{
    const auto at = Parse(localTime);
    return at ? Format("%02d/%02d/%04d", at->month, at->day, at->year) : std::string{};
}

std::string DateWithTime(std::string_view localTime)
{
    const auto at = Parse(localTime);
    if (!at) return {};
    const int hour = at->hour % 12 == 0 ? 12 : at->hour % 12;
    return ShortDate(localTime) + Format(" %d:%02d:%02d %s", hour, at->minute, at->second, at->hour < 12 ? "AM" : "PM");
}

} // namespace server
