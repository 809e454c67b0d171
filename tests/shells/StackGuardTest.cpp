// A frame that was overwritten ends the process before it returns.
#include <windows.h>

#include <gtest/gtest.h>

namespace
{

[[gnu::noinline]] void Overwrite(volatile char* text, int length)
{
    for (int index = 0; index < length; ++index)
        text[index] = 'A';
}

[[gnu::noinline]] void CopyTooMuch(int length)
{
    volatile char text[16];
    Overwrite(text, length);
}

TEST(StackGuard, EndsTheProcessWhenAFrameIsOverwritten)
{
    constexpr int kStackBufferOverrun = static_cast<int>(0xC0000409);
    CopyTooMuch(16);
    EXPECT_EXIT(CopyTooMuch(40), testing::ExitedWithCode(kStackBufferOverrun), "");
}

} // namespace
