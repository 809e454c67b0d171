#include "shared/DateText.h"

#include "support/Conversions.h"

#include <gtest/gtest.h>
#include <tuple>

namespace corvane
{
namespace
{

constexpr CalendarDate kDay{2013, 3, 4};

// Each layout of a day with that day in it; those of the first two lines may have a time behind them.
constexpr std::pair<const wchar_t*, const wchar_t*> kLayouts[] = {
    {L"MM/dd/yyyy", L"03/04/2013"}, {L"M/d/yyyy", L"3/4/2013"}, {L"MM/dd/yy", L"03/04/13"}, {L"M/d/yy", L"3/4/13"},
    {L"MM-dd-yyyy", L"03-04-2013"}, {L"M-d-yyyy", L"3-4-2013"}, {L"MM-dd-yy", L"03-04-13"}, {L"M-d-yy", L"3-4-13"},
    {L"dd/MM/yyyy", L"04/03/2013"}, {L"d/M/yyyy", L"4/3/2013"}, {L"dd/MM/yy", L"04/03/13"}, {L"d/M/yy", L"4/3/13"},
    {L"dd-MM-yyyy", L"04-03-2013"}, {L"d-M-yyyy", L"4-3-2013"}, {L"dd-MM-yy", L"04-03-13"}, {L"d-M-yy", L"4-3-13"},
    {L"yyyy/MM/dd", L"2013/03/04"}, {L"yyyy/M/d", L"2013/3/4"}, {L"yy/MM/dd", L"13/03/04"}, {L"yy/M/d", L"13/3/4"},
    {L"yyyy-MM-dd", L"2013-03-04"}, {L"yyyy-M-d", L"2013-3-4"}, {L"yy-MM-dd", L"13-03-04"}, {L"yy-M-d", L"13-3-4"},
};
constexpr std::size_t kTimedLayouts = 8;
constexpr const wchar_t* kTimes[] = {L" HH:mm:ss AMPM", L" H:m:ss AMPM", L" HH:mm:ss", L" H:m:ss"};

constexpr std::tuple<const char*, const wchar_t*, const wchar_t*, std::optional<CalendarDate>> kCases[] = {
    {"UsTimeLayoutNeedsATime", L"03/04/2013", L"MM/dd/yyyy H:m:ss AMPM", std::nullopt},
    {"LastYearOfThisCentury", L"1/1/29", L"M/d/yy", CalendarDate{2029, 1, 1}},
    {"FirstYearOfTheLast", L"1/1/30", L"M/d/yy", CalendarDate{1930, 1, 1}},
    {"LeapDay", L"02/29/2012", L"MM/dd/yyyy", CalendarDate{2012, 2, 29}},
    {"DaysRunOver", L"02/30/2013", L"MM/dd/yyyy", CalendarDate{2013, 3, 2}},
    {"MonthsRunOver", L"13/01/2013", L"MM/dd/yyyy", CalendarDate{2014, 1, 1}},
    {"UnknownLayout", L"03/04/2013", L"MMM dd, YYYY", std::nullopt},
    {"NoNumber", L"March/04/2013", L"MM/dd/yyyy", std::nullopt},
    {"PieceTooMany", L"03/04/2013/x", L"MM/dd/yyyy", kDay},
    {"PieceMissing", L"03/2013", L"MM/dd/yyyy", std::nullopt},
    {"PieceTooLarge", L"03/40000/2013", L"MM/dd/yyyy", std::nullopt},
    {"NoText", L"", L"UTC", std::nullopt},
};

} // namespace

TEST(DateText, IsReadByEachLayoutWhoseNameIsThatOne)
{
    for (std::size_t at = 0; at < std::size(kLayouts); ++at) {
        const std::wstring layout = kLayouts[at].first, text = kLayouts[at].second;
        SCOPED_TRACE(testing::PrintToString(layout));
        EXPECT_EQ(ParseDate(text, layout), kDay);
        EXPECT_EQ(ParseDate(text, ToLower(layout)), std::nullopt);
        for (const std::wstring time : kTimes) {
            const std::wstring timed = text + L" 1:05:00 PM";
            EXPECT_EQ(ParseDate(timed, layout + time), at < kTimedLayouts ? std::optional{kDay} : std::nullopt);
            EXPECT_EQ(ParseDate(timed, layout + ToLower(time)), std::nullopt);
        }
    }
    for (const auto* layout : {L"UTC", L"yyyy-MM-ddTHH:mm:ss.nnn"})
        EXPECT_EQ(ParseDate(L"2013-03-04T10:20:30.000", layout), kDay);
    EXPECT_EQ(ParseDate(L"2013-03-04T10:20:30.000", L"utc"), std::nullopt);
}

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
