#include "forms/ShownText.h"

#include <gtest/gtest.h>

namespace corvane
{
namespace
{

TEST(ShownText, LeavesOutTheMarksOfAccessKeys)
{
    EXPECT_EQ(WithoutAccessKeys(L"Sa&ve && Send"), L"Save & Send");
    EXPECT_EQ(WithoutAccessKeys(L"R&&D&&"), L"R&D&");
    EXPECT_EQ(WithoutAccessKeys(L"End&"), L"End");
}

TEST(ShownText, EndsALongTextInAnEllipsis)
{
    struct
    {
        const char* name;
        std::wstring text;
        std::size_t room;
        std::wstring expected;
    } const kCases[] = {
        {"Fits", L"Work Item", 9, L"Work Item"},
        {"OneLetterTooLong", L"Work Items", 9, L"Work Ite…"},
        {"NoBlankBeforeTheEllipsis", L"Work Items", 6, L"Work…"},
        {"DoubledAmpersandStaysWhole", L"R&&D Desk", 3, L"R…"},
        {"DoubledAmpersandFits", L"R&&D Desk", 4, L"R&&…"},
        {"SurrogatesStayTogether",
         L"a\xD83D\xDCC8"
         L"b",
         3, L"a…"},
        {"OnlyABlankFits", L" Work", 2, L"…"},
        {"NoRoomAtAll", L"Work", 0, L"…"},
    };
    for (const auto& item : kCases) {
        SCOPED_TRACE(item.name);
        EXPECT_EQ(Shortened(item.text, [&](const std::wstring& part) { return part.size() <= item.room; }),
                  item.expected);
    }
}

TEST(ShownText, HasNoMoreOfAMessageThanItsBoxHasRoomFor)
{
    const std::wstring row(80, L'r');
    const std::wstring tabs(1999, L'\t');
    EXPECT_EQ(MessageText(L"a\r\n\r\nb", {3, 100}), L"a\r\n\r\nb");
    EXPECT_EQ(MessageText(L"a\r\n\r\nb\nc", {3, 100}), L"a\r\n\r\nb…");
    EXPECT_EQ(MessageText(row + L"r\rb", {2, 100}), row + L"r…") << "two rows of one line";
    EXPECT_EQ(MessageText(L"a\n" + row + L" b", {2, 100}), L"a\n" + row.substr(1) + L"…");
    EXPECT_EQ(MessageText(L"ab abcd\tabc", {9, 3}), L"ab abc\r\nd\tabc");
    EXPECT_EQ(MessageText(L"ab\xD83D\xDCC8=", {9, 3}), L"ab\xD83D\xDCC8\r\n=") << "a pair at the break";
    EXPECT_EQ(MessageText(tabs + L"x", {40, 100}), tabs + L"x");
    EXPECT_EQ(MessageText(tabs + L"xx", {40, 100}), tabs + L"…");
}

TEST(ShownText, TellsHowAWaitGoes)
{
    using std::chrono::seconds;
    const std::pair<WaitProgress, const wchar_t*> cases[] = {
        {{seconds{7}, 13002342}, L"12.4 MB, 0:07 .. "},   {{seconds{0}, 10239}, L"0:00 .  "},
        {{seconds{62}, 10240}, L"10 KB, 1:02 ..."},       {{seconds{3600}, 1048576}, L"1.0 MB, 60:00 .  "},
        {{seconds{1}, 104805376}, L"100.0 MB, 0:01 .. "},
    };
    for (const auto& [progress, text] : cases)
        EXPECT_EQ(WaitText(progress), text);
}

} // namespace
} // namespace corvane
