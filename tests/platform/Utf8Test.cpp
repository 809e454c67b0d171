#include "platform/Utf8.h"

#include <gtest/gtest.h>

namespace corvane
{

struct Utf8Case
{
    const char* name;
    const wchar_t* text;
    const char* expected;
};

TEST(Utf8, IsMadeOfTheUnitsOfAText)
{
    constexpr Utf8Case kCases[] = {
        {"Ascii", L"a\x7F", "a\x7F"},
        {"TwoBytes", L"\x80\x7FF", "\xC2\x80\xDF\xBF"},
        {"ThreeBytes", L"\x800\xFFFF", "\xE0\xA0\x80\xEF\xBF\xBF"},
        {"PairOfHalves", L"\xD83D\xDE00", "\xF0\x9F\x98\x80"},
        {"LoneHighHalf", L"\xD83Dx", "\xEF\xBF\xBDx"},
        {"HighHalfAtTheEnd", L"\xD800", "\xEF\xBF\xBD"},
        {"LoneLowHalf", L"\xDE00x", "\xEF\xBF\xBDx"},
        {"HalvesTheWrongWayRound", L"\xDE00\xD83D", "\xEF\xBF\xBD\xEF\xBF\xBD"},
    };
    for (const auto& item : kCases)
        EXPECT_EQ(ToUtf8(item.text), item.expected) << item.name;
}

TEST(Utf8, IsReadAsTextAndNothingElseIs)
{
    constexpr Utf8Case kCases[] = {
        {"OneToThreeBytes", L"a\x7F\x80\x7FF\x800\xFFFF", "a\x7F\xC2\x80\xDF\xBF\xE0\xA0\x80\xEF\xBF\xBF"},
        {"FourBytes", L"\U00010000\U0010FFFF", "\xF0\x90\x80\x80\xF4\x8F\xBF\xBF"},
        {"FollowingByteAlone", L"\xFFFDx", "\x80x"},
        {"CutShort", L"\xFFFDx\xFFFD", "\xE2\x82x\xE2\x82"},
        {"LongerThanNeeded", L"\xFFFD\xFFFDx\xFFFD", "\xC0\x80x\xE0\x9F\xBF"},
        {"HalfOfAPair", L"\xFFFD", "\xED\xA0\x80"},
        {"AboveTheLast", L"\xFFFD", "\xF4\x90\x80\x80"},
    };
    for (const auto& item : kCases)
        EXPECT_EQ(FromUtf8(item.expected), item.text) << item.name;
}

} // namespace corvane
