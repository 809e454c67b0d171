#include "documents/Files.h"

#include <gtest/gtest.h>

#include "TemporaryFolder.h"
#include "automation/AutomationError.h"

namespace host
{
namespace
{

class FilesTest : public testing::Test
{
protected:
    test::TemporaryFolder folder;
};

TEST_F(FilesTest, GrowingFileIsCompleteWithinItsTime)
{
    const std::wstring path = folder.File(L"file.pptx");
    const std::string bytes = std::string(5000, 'x') + "end";
    WriteDocumentFile(path, bytes, SaveFault::Growing);
    EXPECT_EQ(ReadWholeFile(path), std::string(bytes.size(), '\0'));
    const ULONGLONG start = ::GetTickCount64();
    while (ReadWholeFile(path) != bytes && ::GetTickCount64() - start < 10000)
        ::Sleep(50);
    EXPECT_EQ(ReadWholeFile(path), bytes);
    EXPECT_GE(::GetTickCount64() - start, 2000u);
}

TEST_F(FilesTest, TakesPathsApart)
{
    EXPECT_EQ(FileName(L"C:\\a.b\\Plan.PPTX"), L"Plan.PPTX");
    EXPECT_EQ(FolderOf(L"C:\\a.b\\Plan.PPTX"), L"C:\\a.b");
    EXPECT_EQ(Extension(L"C:\\a.b\\Plan.PPTX"), L"pptx");
    EXPECT_EQ(Extension(L"C:\\a.b\\Plan"), L"");
    EXPECT_EQ(FolderOf(L"Plan"), L"");
}

TEST_F(FilesTest, SaysWhichFileItCouldNotUse)
{
    try {
        static_cast<void>(ReadWholeFile(folder.File(L"missing.pptx")));
        FAIL();
    } catch (const AutomationError& error) {
        EXPECT_NE(error.Description().find(L"missing.pptx: "), std::wstring::npos) << error.what();
    }
}

} // namespace
} // namespace host
