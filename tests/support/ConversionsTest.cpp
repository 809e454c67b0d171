#include "support/Conversions.h"

#include <gtest/gtest.h>
#include <limits>
#include <tuple>

namespace corvane
{

TEST(Conversions, ReadAnIntegerAsAutomationDoes)
{
    constexpr std::pair<const wchar_t*, std::int32_t> kCases[] = {
        {L"42", 42},
        {L" 42\t", 42},
        {L"-7", -7},
        {L"+7", 7},
        {L"007", 7},
        {L"12.", 12},
        {L"2.5", 2},
        {L"3.5", 4},
        {L"-2.5", -2},
        {L".75", 1},
        {L"1e3", 1000},
        {L"1D2", 100},
        {L"25E-1", 2},
        {L"&H1f", 31},
        {L"&hFFFFFFFF", -1},
        {L"&H8004070C", -2147219700},
        {L"&O17", 15},
        {L"2147483647", std::numeric_limits<std::int32_t>::max()},
        {L"-2147483648", std::numeric_limits<std::int32_t>::min()},
    };
    for (const auto& [text, expected] : kCases)
        EXPECT_EQ(ToLongSafe(text), expected) << testing::PrintToString(text);
}

TEST(Conversions, GiveZeroForWhatIsNoInteger)
{
    constexpr const wchar_t* kCases[] = {
        L"",      L" ",   L"abc",        L"12abc",       L"1 2",          L"--1",   L"-",    L".",    L"e3",
        L"1e",    L"1e+", L"2147483648", L"-2147483649", L"2147483647.5", L"1e400", L"&H",   L"&Hg",  L"&H:",
        L"&H1?0", L"&O8", L"&H 1",       L"&H100000000", L"1,5.2",        L"true",  L"0x10", L"\xE9", L"\x0661",
    };
    for (const auto* text : kCases)
        EXPECT_EQ(ToLongSafe(text), 0) << testing::PrintToString(text);
}

TEST(Conversions, TakeTrueInAnyCaseAndEveryOtherNumberThanZeroForTrue)
{
    for (const auto* text : {L"true", L"TRUE", L"True", L"1", L"-1", L"0.1", L" 2 ", L"&H1"})
        EXPECT_TRUE(ToBooleanSafe(text)) << testing::PrintToString(text);
    for (const auto* text :
         {L"false", L"FALSE", L"0", L"0.0", L"-0", L"", L"yes", L"on", L"truer", L"&H0", L"1e400", L"0e400"})
        EXPECT_FALSE(ToBooleanSafe(text)) << testing::PrintToString(text);
}

TEST(Conversions, KnowTheSmallLettersOfLatinGreekAndCyrillic)
{
    EXPECT_EQ(
        ToLower(
            L"@AZ["
            L"\xC0\xD6\xD7\xD8\xDE\xDF\x100\x101\x139\x178\x386\x391\x3A9\x400\x410\x42F\x48A\x48B\x4C1\x1E00\x1EA0"),
        L"@az[\xE0\xF6\xD7\xF8\xFE\xDF\x101\x101\x13A\xFF\x3AC\x3B1\x3C9\x450\x430\x44F\x48B\x48B\x4C2\x1E01\x1EA1");
}

TEST(Conversions, TrimTakesBlanksAtTheEndsOnly)
{
    EXPECT_EQ(Trim(L"  two words "), L"two words");
    EXPECT_EQ(Trim(L"\ta\r\n"), L"\ta\r\n");
    EXPECT_EQ(Trim(L"   "), L"");
}

TEST(Conversions, ReplaceEveryOccurrenceFromLeftToRight)
{
    constexpr std::tuple<const char*, const wchar_t*, const wchar_t*, const wchar_t*, const wchar_t*> kCases[] = {
        {"AllOccurrences", L"Gate and Gate", L"Gate", L"Door", L"Door and Door"},
        {"OnlyTheSameLetterCase", L"gate GATE Gate", L"Gate", L"Door", L"gate GATE Door"},
        {"NeverInsideWhatWasPut", L"aba", L"a", L"aa", L"aabaa"},
        {"OverlapsCountOnce", L"aaa", L"aa", L"b", L"ba"},
        {"ByNothing", L"a&b&", L"&", L"", L"ab"},
        {"NothingToFind", L"text", L"", L"x", L"text"},
    };
    for (const auto& [name, text, what, with, expected] : kCases)
        EXPECT_EQ(ReplaceAll(text, what, with), expected) << name;
}

} // namespace corvane
