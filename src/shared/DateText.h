// Dates as the server writes them and as notifications show them.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace corvane
{

// A day without a time.
struct CalendarDate
{
    int year;
    int month;
    int day;

    friend bool operator==(const CalendarDate&, const CalendarDate&) = default;
};

// The layouts in which the server writes the dates of versions.
inline constexpr const wchar_t* kVersionDateLayout = L"MM/dd/yyyy";
inline constexpr const wchar_t* kVersionTimeLayout = L"MM/dd/yyyy H:m:ss AMPM";

// Reads the day out of a text whose layout is named, by position; any time of day is dropped. Days and months beyond
// their range run over into the next month or year. Years of two digits are those from 1930 to 2029. Nothing for a text
// that does not fit its layout, and for a layout that is not known (names are case-sensitive).
[[nodiscard]] std::optional<CalendarDate> ParseDate(std::wstring_view text, std::wstring_view layout);

// "Mar 04, 2013"; empty for no date.
[[nodiscard]] std::wstring ShownDate(const std::optional<CalendarDate>& date);

} // namespace corvane
