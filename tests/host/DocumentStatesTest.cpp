// The states that settings bring documents into, and the saves that they spoil.
#include "HostTest.h"

namespace host::test
{
namespace
{

class DocumentStatesTest : public HostTest
{};

TEST_F(DocumentStatesTest, FinalDocumentIsNeitherWrittenNorEditedButCopied)
{
    for (const HostRow& row : kHosts) {
        SCOPED_TRACE(row.option);
        Start(row.option);
        const std::wstring path = SavedFile(row);
        session->Set("document.final", "true");
        session->Open(path, false);
        const Script active = Application().Object(row.active);
        EXPECT_TRUE(active.Call(L"Final").Boolean());
        EXPECT_EQ(AddProperty(active), row.final);
        EXPECT_EQ(FailureOf([&] { active.Call(L"Save"); }), row.final);
        if (row.active != std::wstring_view{L"ActiveDocument"}) {
            active.Call(L"SaveCopyAs", {std::wstring_view{folder.File(L"copy." + Extension(path))}});
            EXPECT_FALSE(ReadWholeFile(folder.File(L"copy." + Extension(path))).empty());
        }
        active.Put(L"Final", Flag(false));
        EXPECT_EQ(AddProperty(active), S_OK);
    }
}

TEST_F(DocumentStatesTest, DocumentThatProgramsDoNotReachIsNotActive)
{
    for (const HostRow& row : kHosts)
        for (const auto& [setting, value, count] :
             {std::tuple{"document.view", "protected", 0L}, {"document.windows", "0", 1L}})
        {
            Start(row.option, L"16.0", {{setting, value}});
            session->New();
            EXPECT_EQ(FailureOf([&] { EXPECT_FALSE(Application().Call(row.active).Object()); }), row.whenNoneIsActive);
            EXPECT_EQ(Application().Object(row.documents).Call(L"Count").Number(), count) << row.option << setting;
        }
}

TEST_F(DocumentStatesTest, SeveralWindowsOfADocumentAreNumbered)
{
    Start("powerpoint", L"16.0", {{"document.windows", "2"}});
    session->New();
    const Script windows = Application().Object(L"Windows");
    EXPECT_EQ(windows.Call(L"Count").Number(), 2);
    EXPECT_EQ(windows.Object(L"Item", {2L}).Call(L"Caption").Text(), L"Presentation1:2");
}

TEST_F(DocumentStatesTest, WebDocumentIsKnownByItsAddressAndKeptInItsFile)
{
    for (const HostRow& row : kHosts) {
        SCOPED_TRACE(row.option);
        Start(row.option);
        const std::wstring path = SavedFile(row);
        session->Set("document.url", "https://team.example.org/Shared Documents/R%26D/plan.x");
        session->Open(path, false);
        const Script active = Application().Object(row.active);
        EXPECT_EQ(active.Call(L"FullName").Text(), L"https://team.example.org/Shared Documents/R%26D/plan.x");
        EXPECT_EQ(active.Call(L"Path").Text(), L"https://team.example.org/Shared Documents/R%26D");
        EXPECT_EQ(active.Call(L"Name").Text(), L"plan.x");
        const std::string before = ReadWholeFile(path);
        EXPECT_EQ(AddProperty(active), S_OK);
        active.Put(L"Saved", Flag(false));
        active.Call(L"Save");
        EXPECT_NE(ReadWholeFile(path), before);
        EXPECT_EQ(active.Call(L"Name").Text(), L"plan.x");
        active.Call(L"SaveAs", {std::wstring_view{folder.File(L"local")}});
        EXPECT_EQ(active.Call(L"Path").Text(), folder.Path());
    }
}

TEST_F(DocumentStatesTest, FailedSavesAreReportedAsEachHostDoes)
{
    for (const HostRow& row : kHosts) {
        SCOPED_TRACE(row.option);
        Start(row.option);
        const std::wstring path = SavedFile(row);
        session->Open(path, true);
        const Script active = Application().Object(row.active);
        EXPECT_EQ(FailureOf([&] { active.Call(L"Save"); }), row.readOnly);
        session->Set("save.fault", "locked");
        EXPECT_EQ(FailureOf([&] { active.Call(L"SaveAs", {std::wstring_view{path}}); }), row.locked);
        for (const char* fault : {"full", "denied", "error"}) {
            session->Set("save.fault", fault);
            EXPECT_NE(FailureOf([&] { active.Call(L"SaveAs", {std::wstring_view{path}}); }), S_OK) << fault;
        }
        EXPECT_EQ(active.Call(L"FullName").Text(), path);
        session->Set("save.fault", "");
        EXPECT_NE(FailureOf([&] { active.Call(L"SaveAs", {std::wstring_view{folder.File(L"con.new")}}); }), S_OK);
        EXPECT_NE(FailureOf([&] { active.Call(L"SaveAs", {std::wstring_view{folder.File(L"a?b")}}); }), S_OK);
        EXPECT_NE(FailureOf([&] { active.Call(L"SaveAs", {std::wstring_view{folder.File(std::wstring(260, L'n'))}}); }),
                  S_OK);
    }
}

TEST_F(DocumentStatesTest, UnusualNamesAreKeptAsTheyAre)
{
    Start("word");
    for (const wchar_t* name :
         {L"R&D 100% + #1.docx", L"Jahr 'x', \u00fcber \u65e5\u672c\u8a9e.docx", L"  led.docx", L"plan.final.docx"})
    {
        const std::wstring path = SavedFile(kHosts[1], name);
        session->Open(path, false);
        EXPECT_EQ(Application().Object(L"ActiveDocument").Call(L"Name").Text(), name);
        Application().Object(L"ActiveDocument").Call(L"Close");
    }
}

TEST_F(DocumentStatesTest, LongPathsOpenAndAreSavedInPlaceButNotChosen)
{
    Start("word");
    const std::wstring path = folder.File(std::wstring(240, L'n') + L".docx");
    ASSERT_GT(path.size(), 260u);
    WriteWholeFile(path, ReadWholeFile(SavedFile(kHosts[1])));
    session->Open(path, false);
    const Script active = Application().Object(L"ActiveDocument");
    active.Put(L"Saved", Flag(false));
    active.Call(L"Save");
    EXPECT_EQ(active.Call(L"FullName").Text(), path);
    EXPECT_EQ(FailureOf([&] { active.Call(L"SaveAs", {std::wstring_view{path}}); }), Number(0x800A1420));
    active.Call(L"Close");
    ::DeleteFileW((L"\\\\?\\" + path).c_str());
}

TEST_F(DocumentStatesTest, FaultsAfterTheSaveLeaveNothingToUpload)
{
    Start("word");
    const std::wstring path = SavedFile(kHosts[1]);
    session->Open(path, false);
    const Script active = Application().Object(L"ActiveDocument");
    for (const char* fault : {"held", "gone"}) {
        session->Set("save.fault", fault);
        active.Put(L"Saved", Flag(false));
        active.Call(L"Save");
        EXPECT_THROW(static_cast<void>(ReadWholeFile(path)), FileError) << fault;
    }
}

} // namespace
} // namespace host::test
