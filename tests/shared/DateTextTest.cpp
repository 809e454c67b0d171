#include "shared/DateText.h"

#include <gtest/gtest.h>

namespace corvane
{
namespace
{

struct DateCase
{
    const char* name;
    const wchar_t* text;
    const wchar_t* layout;
    std::optional<CalendarDate> expected;
};

constexpr CalendarDate kDay{2013, 3, 4};
constexpr DateCase kCases[] = {
    {"IsoWithTime", L"2013-03-04T10:20:30.000", L"yyyy-MM-ddTHH:mm:ss.nnn", kDay},
    {"Utc", L"2013-03-04T10:20:30.000", L"UTC", kDay},
    {"UsWithTime", L"3/4/2013 1:05:00 PM", L"M/d/yyyy H:m:ss AMPM", kDay},
    {"UsWithTimeOfOneBlank", L"03-04-2013 13:05:00", L"MM-dd-yyyy HH:mm:ss", kDay},
    {"UsTimeLayoutNeedsATime", L"03/04/2013", L"MM/dd/yyyy H:m:ss AMPM", std::nullopt},
    {"UsDate", L"03/04/2013", L"MM/dd/yyyy", kDay},
    {"UsDateWithDashes", L"3-4-2013", L"M-d-yyyy", kDay},
    {"DayFirst", L"04/03/2013", L"dd/MM/yyyy", kDay},
    {"DayFirstWithDashes", L"4-3-13", L"d-M-yy", kDay},
    {"DayFirstHasNoTime", L"04/03/2013 10:00:00", L"dd/MM/yyyy HH:mm:ss", std::nullopt},
    {"YearFirst", L"2013/03/04", L"yyyy/MM/dd", kDay},
    {"YearFirstWithDashes", L"13-3-4", L"yy-M-d", kDay},
    {"LastYearOfThisCentury", L"1/1/29", L"M/d/yy", CalendarDate{2029, 1, 1}},
    {"FirstYearOfTheLast", L"1/1/30", L"M/d/yy", CalendarDate{1930, 1, 1}},
    {"LeapDay", L"02/29/2012", L"MM/dd/yyyy", CalendarDate{2012, 2, 29}},
    {"DaysRunOver", L"02/30/2013", L"MM/dd/yyyy", CalendarDate{2013, 3, 2}},
    {"MonthsRunOver", L"13/01/2013", L"MM/dd/yyyy", CalendarDate{2014, 1, 1}},
    {"LayoutInOtherLetters", L"03/04/2013", L"mm/dd/yyyy", std::nullopt},
    {"UnknownLayout", L"03/04/2013", L"MMM dd, YYYY", std::nullopt},
    {"NoNumber", L"March/04/2013", L"MM/dd/yyyy", std::nullopt},
    {"PieceTooMany", L"03/04/2013/x", L"MM/dd/yyyy", kDay},
    {"PieceMissing", L"03/2013", L"MM/dd/yyyy", std::nullopt},
    {"PieceTooLarge", L"03/40000/2013", L"MM/dd/yyyy", std::nullopt},
    {"NoText", L"", L"UTC", std::nullopt},
};

} // namespace

TEST(DateText, IsReadByThePositionsOfItsLayout)
{
    for (const auto& [name, text, layout, expected] : kCases)
        EXPECT_EQ(ParseDate(text, layout), expected) << name;
}

TEST(DateText, IsShownWithTheMonthsName)
{
    EXPECT_EQ(ShownDate(kDay), L"Mar 04, 2013");
    EXPECT_EQ(ShownDate(CalendarDate{2026, 12, 31}), L"Dec 31, 2026");
    EXPECT_EQ(ShownDate(std::nullopt), L"");
}

} // namespace corvane
