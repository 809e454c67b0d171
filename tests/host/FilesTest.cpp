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
    std::string Written(SaveFault fault)
    {
        WriteDocumentFile(path, bytes, fault);
        return ReadWholeFile(path);
    }

    test::TemporaryFolder folder;
    const std::wstring path = folder.File(L"file.pptx");
    const std::string bytes = std::string(5000, 'x') + "end";
};

TEST_F(FilesTest, SpoilsTheSavedFileAsTheFaultSays)
{
    EXPECT_EQ(Written(SaveFault::None), bytes);
    EXPECT_EQ(Written(SaveFault::Empty), "");
    EXPECT_EQ(Written(SaveFault::Zeros), std::string(bytes.size(), '\0'));
    EXPECT_THROW(Written(SaveFault::Error), AutomationError);
    EXPECT_EQ(SaveFaultNamed("growing"), SaveFault::Growing);
    EXPECT_EQ(SaveFaultNamed(""), SaveFault::None);
}

TEST_F(FilesTest, GrowingFileIsCompleteWithinItsTime)
{
    EXPECT_EQ(Written(SaveFault::Growing), std::string(bytes.size(), '\0'));
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
