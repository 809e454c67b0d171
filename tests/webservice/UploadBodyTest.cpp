#include "webservice/UploadBody.h"

#include <gtest/gtest.h>
#include <vector>

namespace corvane
{

struct Utf8Case
{
    const char* name;
    const wchar_t* text;
    const char* expected;
};

TEST(UploadBody, TurnsTextIntoUtf8)
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

struct AttemptCase
{
    const char* name;
    ReadAttempt attempt;
    bool complete;
};

TEST(UploadBody, IsReadyWhenTheFileIsCompletelyWritten)
{
    constexpr AttemptCase kCases[] = {
        {"Written", {10, 10, false}, true},       {"Empty", {0, 0, true}, false},
        {"EmptyThatGrew", {0, 10, false}, false}, {"OnlyZeros", {10, 10, true}, false},
        {"Growing", {10, 11, false}, false},      {"Shrinking", {10, 9, false}, false},
    };
    for (const auto& [name, attempt, complete] : kCases)
        EXPECT_EQ(IsComplete(attempt), complete) << name;
}

TEST(UploadBody, LooksAtEveryByteForZeros)
{
    std::vector<std::byte> bytes(4096);
    EXPECT_TRUE(AllZero(bytes));
    bytes.back() = std::byte{1};
    EXPECT_FALSE(AllZero(bytes));
}

} // namespace corvane
