// A frame that was overwritten ends the process before it returns, and libraries are those of the system.
#include "platform/SystemLibrary.h"

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

TEST(SystemLibrary, IsNotSoughtWhereOthersMayPutOne)
{
    ::SetDllDirectoryW(ADDIN_FOLDER);
    ASSERT_TRUE(::FreeLibrary(::LoadLibraryW(L"CorvaneMSOfficePowerPoint.dll")));
    corvane::SearchSystemFolderOnly();
    EXPECT_EQ(::LoadLibraryW(L"CorvaneMSOfficePowerPoint.dll"), nullptr);
}

} // namespace
