#include "platform/LongPath.h"

#include <gtest/gtest.h>

namespace corvane
{

TEST(LongPath, PrefixesOnlyFullPathsBeyondTheClassicLimit)
{
    const std::wstring tail(245, L'x');
    EXPECT_EQ(AsLongPath(L"C:\\" + tail.substr(1)), L"C:\\" + tail.substr(1));
    EXPECT_EQ(AsLongPath(L"C:\\" + tail), L"\\\\?\\C:\\" + tail);
    EXPECT_EQ(AsLongPath(L"C:/d/" + tail), L"\\\\?\\C:\\d\\" + tail);
    EXPECT_EQ(AsLongPath(L"\\\\server\\share\\" + tail), L"\\\\?\\UNC\\server\\share\\" + tail);
    EXPECT_EQ(AsLongPath(L"\\\\?\\C:\\" + tail), L"\\\\?\\C:\\" + tail);
    EXPECT_EQ(AsLongPath(L"xxx" + tail), L"xxx" + tail);
}

} // namespace corvane
