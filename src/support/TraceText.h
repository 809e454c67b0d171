// The texts of the trace: its lines, its error block and its file name.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace corvane
{

// A local date and time, as the clock on the wall shows it.
struct LocalTime
{
    int year;
    int month;
    int day;
    int hour;
    int minute;
    int second;
};

// The folders that lead from the user's application data to the trace files.
inline constexpr const wchar_t* kTraceFolders[] = {L"\\Halvex", L"\\Corvane for MS Office"};

inline constexpr const wchar_t* kTraceApplication = L"CorvaneMSOfficePowerPoint";

// The name of a trace file: the add-in's name and the time of its making, numbers without leading zeros
// ("Name_2013_7_4__9_5_3.log").
[[nodiscard]] std::wstring TraceFileName(std::wstring_view application, const LocalTime& time);

// Whether a file of that name is one of these.
[[nodiscard]] bool IsTraceFileName(std::wstring_view application, std::wstring_view name);

// "2013-07-04 09:05:03"
[[nodiscard]] std::wstring SortableTime(const LocalTime& time);

// level + 1 tabs; none from level -1 down.
[[nodiscard]] std::wstring TraceTabs(std::int32_t level);

// One line without its line end: the time, a tab, the extra indent (none when negative), the level's tabs, the text.
[[nodiscard]] std::wstring TraceLine(const LocalTime& time, std::int32_t level, std::int32_t extraIndent,
                                     std::wstring_view text);

// The block that stands for a caught error.
[[nodiscard]] std::wstring TraceErrorBlock(std::int32_t number, std::wstring_view description,
                                           std::wstring_view source);

} // namespace corvane
