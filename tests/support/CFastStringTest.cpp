#include "support/CFastString.h"

#include "platform/Error.h"

#include <gtest/gtest.h>

namespace corvane
{
namespace
{

CFastString Filled(std::int32_t pieces)
{
    CFastString builder;
    for (std::int32_t piece = 0; piece < pieces; ++piece)
        builder.Append(std::wstring(1, static_cast<wchar_t>(L'a' + piece % 26)));
    return builder;
}

} // namespace

TEST(CFastString, JoinsItsPiecesWithTheDelimiterBetweenThem)
{
    CFastString builder = Filled(3);
    EXPECT_EQ(builder.Chunks(), 3);
    EXPECT_EQ(builder.ToString(L", "), L"a, b, c");
    EXPECT_EQ(builder.ToString(), L"abc") << "reading it again changes nothing";
}

TEST(CFastString, TellsNothingFromAnEmptyText)
{
    CFastString builder;
    EXPECT_EQ(builder.Chunks(), 0);
    EXPECT_EQ(builder.ToString(L", "), std::nullopt);
    builder.Append(L"");
    EXPECT_EQ(builder.ToString(L", "), L"");
}

TEST(CFastString, GrowsByBlocksOfAThousandAndOnceReadTakesMoreOnlyAtTheirEdges)
{
    constexpr std::pair<std::int32_t, bool> kCases[] = {{0, true},     {1, false},   {999, false}, {1000, true},
                                                        {1001, false}, {2000, true}, {2001, false}};
    for (const auto& [pieces, takesMoreOnceRead] : kCases) {
        SCOPED_TRACE(pieces);
        CFastString builder = Filled(pieces);
        EXPECT_EQ(builder.ToString().value_or(L"").size(), static_cast<std::size_t>(pieces));
        try {
            builder.Append(L"more");
            EXPECT_TRUE(takesMoreOnceRead);
            EXPECT_TRUE(builder.ToString()->ends_with(L"more"));
        } catch (const Error& error) {
            EXPECT_FALSE(takesMoreOnceRead);
            EXPECT_EQ(error.Number(), 9);
            EXPECT_EQ(builder.Chunks(), pieces);
        }
    }
}

} // namespace corvane
