#include "platform/LongPath.h"

#include <gtest/gtest.h>

namespace corvane
{

TEST(LongPath, PrefixesOnlyFullPathsBeyondTheClassicLimit)
{
    const std::wstring tail(250, L'x');
    EXPECT_EQ(AsLongPath(L"C:\\decks\\plan.pptx"), L"C:\\decks\\plan.pptx");
    EXPECT_EQ(AsLongPath(L"C:\\" + tail), L"\\\\?\\C:\\" + tail);
    EXPECT_EQ(AsLongPath(L"C:/d/" + tail), L"\\\\?\\C:\\d\\" + tail);
    EXPECT_EQ(AsLongPath(L"\\\\server\\share\\" + tail), L"\\\\?\\UNC\\server\\share\\" + tail);
    EXPECT_EQ(AsLongPath(L"\\\\?\\C:\\" + tail), L"\\\\?\\C:\\" + tail);
    EXPECT_EQ(AsLongPath(tail), tail);
}

} // namespace corvane
