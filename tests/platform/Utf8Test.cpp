#include "platform/Utf8.h"

#include <gtest/gtest.h>

namespace corvane
{

using Utf8Case = std::pair<const wchar_t*, const char*>; // a text and its bytes

TEST(Utf8, IsMadeOfTheUnitsOfAText)
{
    constexpr Utf8Case kCases[] = {
        {L"a\x7F", "a\x7F"},
        {L"\x80\x7FF", "\xC2\x80\xDF\xBF"},
        {L"\x800\xFFFF", "\xE0\xA0\x80\xEF\xBF\xBF"},
        {L"\xD83D\xDE00", "\xF0\x9F\x98\x80"},
        {L"\xD83Dx", "\xEF\xBF\xBDx"},
        {L"\xD800", "\xEF\xBF\xBD"},
        {L"\xDE00x", "\xEF\xBF\xBDx"},
        {L"\xDE00\xD83D", "\xEF\xBF\xBD\xEF\xBF\xBD"},
    };
    for (const auto& [text, bytes] : kCases)
        EXPECT_EQ(ToUtf8(text), bytes);
}

TEST(Utf8, IsReadAsTextAndNothingElseIs)
{
    constexpr Utf8Case kCases[] = {
        {L"a\x7F\x80\x7FF\x800\xFFFF", "a\x7F\xC2\x80\xDF\xBF\xE0\xA0\x80\xEF\xBF\xBF"},
        {L"\U00010000\U0010FFFF", "\xF0\x90\x80\x80\xF4\x8F\xBF\xBF"},
        {L"\xFFFDx", "\x80x"},
        {L"\xFFFDx\xFFFD", "\xE2\x82x\xE2\x82"},
        {L"\xFFFD\xFFFDx\xFFFD", "\xC0\x80x\xE0\x9F\xBF"},
        {L"\xFFFD", "\xED\xA0\x80"},
        {L"\xFFFD", "\xF4\x90\x80\x80"},
    };
    for (const auto& [text, bytes] : kCases)
        EXPECT_EQ(FromUtf8(bytes), text) << testing::PrintToString(bytes);
}

} // namespace corvane
