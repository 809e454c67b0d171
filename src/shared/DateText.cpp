#include "shared/DateText.h"

#include "support/Conversions.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <limits>
#include <span>
#include <vector>

namespace corvane
{
namespace
{

// Layouts of the date itself: how its pieces are separated and at which of them day, month and year stand.
struct DateLayout
{
    std::array<std::wstring_view, 4> names;
    wchar_t separator;
    std::size_t day;
    std::size_t month;
    std::size_t year;
    bool mayHaveTime;
};
constexpr DateLayout kLayouts[] = {
    {{L"MM/dd/yyyy", L"M/d/yyyy", L"MM/dd/yy", L"M/d/yy"}, L'/', 1, 0, 2, true},
    {{L"MM-dd-yyyy", L"M-d-yyyy", L"MM-dd-yy", L"M-d-yy"}, L'-', 1, 0, 2, true},
    {{L"dd/MM/yyyy", L"d/M/yyyy", L"dd/MM/yy", L"d/M/yy"}, L'/', 0, 1, 2, false},
    {{L"dd-MM-yyyy", L"d-M-yyyy", L"dd-MM-yy", L"d-M-yy"}, L'-', 0, 1, 2, false},
    {{L"yyyy/MM/dd", L"yy/MM/dd", L"yyyy/M/d", L"yy/M/d"}, L'/', 2, 1, 0, false},
    {{L"yyyy-MM-dd", L"yy-MM-dd", L"yyyy-M-d", L"yy-M-d"}, L'-', 2, 1, 0, false},
};
constexpr std::wstring_view kTimes[] = {L" HH:mm:ss AMPM", L" H:m:ss AMPM", L" HH:mm:ss", L" H:m:ss"};
constexpr std::wstring_view kIsoNames[] = {L"UTC", L"yyyy-MM-ddTHH:mm:ss.nnn"};
constexpr DateLayout kIsoLayout{{}, L'-', 2, 1, 0, false};
constexpr std::size_t kIsoDateLength = 10;

bool IsOneOf(std::span<const std::wstring_view> names, std::wstring_view name)
{
    return std::ranges::find(names, name) != names.end();
}

// A layout and the part of the text that it reads.
struct DateSource
{
    const DateLayout* layout = nullptr;
    std::wstring_view text;
};

DateSource SourceOf(std::wstring_view text, std::wstring_view layout)
{
    if (IsOneOf(kIsoNames, layout)) return {&kIsoLayout, text.substr(0, kIsoDateLength)};
    for (const DateLayout& candidate : kLayouts) {
        for (const std::wstring_view name : candidate.names) {
            if (layout == name) return {&candidate, text};
            const bool timed =
                candidate.mayHaveTime && layout.starts_with(name) && IsOneOf(kTimes, layout.substr(name.size()));
            if (timed && text.find(L' ') != std::wstring_view::npos)
                return {&candidate, text.substr(0, text.find(L' '))};
        }
    }
    return {};
}

std::vector<std::wstring_view> Pieces(std::wstring_view text, wchar_t separator)
{
    std::vector<std::wstring_view> pieces;
    for (;;) {
        const auto end = text.find(separator);
        pieces.push_back(text.substr(0, end));
        if (end == std::wstring_view::npos) return pieces;
        text.remove_prefix(end + 1);
    }
}

// A piece as a 16-bit integer; nothing when it is missing or no such number.
std::optional<int> NumberAt(const std::vector<std::wstring_view>& pieces, std::size_t position)
{
    const auto number = position < pieces.size() ? NumberIn(pieces[position]) : std::nullopt;
    if (!number || std::abs(*number) > std::numeric_limits<std::int16_t>::max()) return std::nullopt;
    return static_cast<int>(std::nearbyint(*number));
}

std::optional<CalendarDate> DateFromParts(int year, int month, int day)
{
    constexpr int kMonths = 12;
    constexpr int kCentury = 100;
    constexpr int kPivot = 30; // 00 to 29 are 2000 to 2029
    if (year >= 0 && year < kCentury) year += year < kPivot ? 2000 : 1900;
    const int months = year * kMonths + month - 1;
    const auto first =
        std::chrono::year{months / kMonths} / std::chrono::month{static_cast<unsigned>(months % kMonths) + 1} / 1;
    if (year < kCentury || !first.ok()) return std::nullopt;
    const std::chrono::year_month_day date{std::chrono::sys_days{first} + std::chrono::days{day - 1}};
    return CalendarDate{static_cast<int>(date.year()), static_cast<int>(static_cast<unsigned>(date.month())),
                        static_cast<int>(static_cast<unsigned>(date.day()))};
}

} // namespace

std::optional<CalendarDate> ParseDate(std::wstring_view text, std::wstring_view layout)
{
    const DateSource source = SourceOf(text, layout);
    if (source.layout == nullptr) return std::nullopt;
    const auto pieces = Pieces(source.text, source.layout->separator);
    const auto year = NumberAt(pieces, source.layout->year);
    const auto month = NumberAt(pieces, source.layout->month);
    const auto day = NumberAt(pieces, source.layout->day);
    return year && month && day ? DateFromParts(*year, *month, *day) : std::nullopt;
}

std::wstring ShownDate(const std::optional<CalendarDate>& date)
{
    constexpr std::array<const wchar_t*, 12> kMonthNames = {L"Jan", L"Feb", L"Mar", L"Apr", L"May", L"Jun",
                                                            L"Jul", L"Aug", L"Sep", L"Oct", L"Nov", L"Dec"};
    if (!date) return {};
    const std::wstring padding = date->day < 10 ? L"0" : L"";
    return kMonthNames.at(static_cast<std::size_t>(date->month) - 1) + (L" " + padding) + std::to_wstring(date->day) +
           L", " + std::to_wstring(date->year);
}

} // namespace corvane
