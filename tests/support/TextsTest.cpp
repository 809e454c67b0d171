#include "support/Settings.h"
#include "support/TraceText.h"
#include "support/VersionText.h"

#include <gtest/gtest.h>
#include <limits>
#include <tuple>

namespace corvane
{
namespace
{
constexpr LocalTime kMorning{2013, 7, 4, 9, 5, 3};
}

struct PolicyCase
{
    const char* name;
    Settings file;
    SettingsPolicy policy;
    bool trace;
    int timeout;
};

TEST(Settings, ObeyThePolicyWhereItDecides)
{
    using std::chrono::seconds;
    constexpr PolicyCase kCases[] = {
        {"NoPolicy", {true, seconds{20}}, {}, true, 20},
        {"TraceOff", {true, seconds{20}}, {.trace = 0}, false, 20},
        {"TraceOn", {false, seconds{20}}, {.trace = 1}, true, 20},
        {"TimeOut", {true, seconds{20}}, {.requestTimeout = 60}, true, 60},
        {"NoTimeOut", {true, seconds{20}}, {.requestTimeout = 0}, true, 0},
        {"NegativeDecidesNothing", {true, seconds{20}}, {.requestTimeout = -1}, true, 20},
    };
    for (const PolicyCase& item : kCases) {
        const Settings decided = item.file.Under(item.policy);
        EXPECT_EQ(decided.traceEnabled, item.trace) << item.name;
        EXPECT_EQ(decided.requestTimeout, seconds{item.timeout}) << item.name;
    }
}

TEST(TraceText, NamesTheFileByItsTimeWithoutLeadingZeros)
{
    EXPECT_EQ(TraceFileName(L"AddIn", kMorning), L"AddIn_2013_7_4__9_5_3.log");
    EXPECT_EQ(TraceFileName(L"AddIn", {2024, 12, 31, 23, 59, 0}), L"AddIn_2024_12_31__23_59_0.log");
    EXPECT_TRUE(IsTraceFileName(L"AddIn", TraceFileName(L"AddIn", kMorning)));
    for (const wchar_t* other :
         {L"AddIn.log", L"AddIn_2013_7_4__9_5_.log", L"AddIn_2013_7_4__9_5_3.log.x", L"Other_2013_7_4__9_5_3.log"})
        EXPECT_FALSE(IsTraceFileName(L"AddIn", other)) << other;
}

TEST(TraceText, IndentsALineByTheExtraIndentAndOneMoreThanItsLevel)
{
    constexpr std::tuple<const char*, std::int32_t, std::int32_t, const wchar_t*, const wchar_t*> kCases[] = {
        {"Outermost", 0, 0, L"--> A", L"\t\t--> A"},
        {"Nested", 2, 0, L"x = ", L"\t\t\t\tx = "},
        {"ExtraIndent", 1, 2, L"x", L"\t\t\t\t\tx"},
        {"NegativeIndentCountsAsNone", 0, -3, L"x", L"\t\tx"},
        {"SmallestIndentCountsAsNone", 0, std::numeric_limits<std::int32_t>::min(), L"x", L"\t\tx"},
        {"DriftedLevelHasNoTabs", -1, 0, L"x", L"\tx"},
        {"FarDriftedLevelHasNoTabs", std::numeric_limits<std::int32_t>::min(), 1, L"", L"\t\t"},
    };
    for (const auto& [name, level, extraIndent, text, expected] : kCases) {
        EXPECT_EQ(TraceLine(kMorning, level, extraIndent, text), std::wstring{L"2013-07-04 09:05:03"} + expected)
            << name;
    }
}

TEST(TraceText, WritesAnErrorAsOneBlock)
{
    EXPECT_EQ(TraceErrorBlock(-2147221504, L"No access", L"CUser"),
              L"ERROR HAS OCCURED\r\n\r\n\tNumber = -2147221504\r\n\tDescription = No access\r\n\tSource = CUser\r\n");
}

TEST(VersionText, PadsTheMinorNumberOnly)
{
    EXPECT_EQ(VersionText(8, 50, 100), L"Version 8.50.100");
    EXPECT_EQ(VersionText(8, 5, 7), L"Version 8.05.7");
    EXPECT_EQ(VersionText(10, 10, 0), L"Version 10.10.0");
    EXPECT_EQ(VersionText(0, 0, 0), L"Version 0.00.0");
}

} // namespace corvane
