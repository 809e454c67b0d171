// The object model of each host, as a program written for it calls it.
#include "HostTest.h"

namespace host::test
{
namespace
{

class HostModelsTest : public HostTest
{};

TEST_F(HostModelsTest, EveryHostTellsItsDocumentsInItsOwnWords)
{
    for (const HostRow& row : kHosts)
        for (const wchar_t* version : {L"11.0", L"12.0", L"14.0", L"16.0"}) {
            SCOPED_TRACE(row.option + Narrow(version));
            Start(row.option, version);
            EXPECT_EQ(Application().Call(L"Name").Text(), row.name);
            EXPECT_EQ(Application().Call(L"Version").Text(), version);
            EXPECT_EQ(FailureOf([&] { EXPECT_FALSE(Application().Call(row.active).Object()); }), row.whenNoneIsActive);
            const Script documents = Application().Object(row.documents);
            documents.Call(L"Add");
            EXPECT_EQ(documents.Call(L"Count").Number(), 1);
            const Script active = Application().Object(row.active);
            EXPECT_EQ(active.Call(L"FullName").Text(), row.newName);
            EXPECT_EQ(active.Call(L"Path").Text(), L"");
            EXPECT_EQ(active.Call(L"Saved").Type(), row.flag);
            EXPECT_EQ(active.Call(L"ReadOnly").Type(), row.flag);
            active.Call(L"SaveAs", {std::wstring_view{folder.File(L"a")}});
            EXPECT_EQ(active.Call(L"Name").Text(), version == std::wstring_view{L"11.0"} ? row.classic : row.saved);
            EXPECT_EQ(active.Call(L"Path").Text(), folder.Path());
            EXPECT_EQ(FailureOf([&] { active.Call(L"Final"); }),
                      version == std::wstring_view{L"11.0"} ? DISP_E_UNKNOWNNAME : S_OK);
            active.Call(L"Close");
            EXPECT_EQ(FailureOf([&] { active.Call(L"Saved"); }), row.afterClosing);
        }
}

TEST_F(HostModelsTest, SavesOnlyWhatIsChangedWhereTheHostDoes)
{
    struct
    {
        const char* host;
        const wchar_t* version;
        bool marks;
    } const cases[] = {
        {"powerpoint", L"16.0", true}, {"word", L"16.0", false}, {"excel", L"11.0", true}, {"excel", L"16.0", false}};
    for (const auto& row : cases) {
        Start(row.host, row.version);
        const HostRow& host = RowOf(row.host);
        const std::wstring path = SavedFile(host);
        session->Open(path, false);
        const Script active = Application().Object(host.active);
        EXPECT_EQ(AddProperty(active), S_OK);
        EXPECT_EQ(active.Call(L"Saved").Boolean(), !row.marks) << row.host;
        const std::string before = ReadWholeFile(path);
        active.Call(L"Save");
        EXPECT_EQ(ReadWholeFile(path) == before, !row.marks) << row.host;
        active.Put(L"Saved", Flag(false));
        active.Call(L"Save");
        EXPECT_NE(ReadWholeFile(path), before) << row.host;
    }
}

TEST_F(HostModelsTest, ExcelRefusesCallsWhileACellIsEdited)
{
    const auto newEnabled = [&] {
        const Script bar = Application().Object(L"CommandBars").Object(L"Item", {L"Worksheet Menu Bar"});
        return bar.Object(L"FindControl", {1L, 18L, Value{}, Value{}, Flag(true)}).Call(L"Enabled").Boolean();
    };
    Start("excel");
    session->New();
    const Script book = Application().Object(L"ActiveWorkbook");
    EXPECT_TRUE(newEnabled());
    EXPECT_TRUE(Application().Call(L"Ready").Boolean());
    for (const auto& [value, number, busy] : {std::tuple{"800AC472", 0x800AC472UL, false},
                                              {"800A03EC", 0x800A03ECUL, false},
                                              {"8001010A", 0x8001010AUL, true}})
    {
        session->Set("editing", value);
        EXPECT_EQ(FailureOf([&] { EXPECT_FALSE(newEnabled()); }), busy ? Number(number) : S_OK);
        EXPECT_EQ(FailureOf([&] { Application().Put(L"Interactive", Flag(false)); }), Number(number));
        EXPECT_EQ(FailureOf([&] { book.Call(L"Save"); }), Number(number));
        EXPECT_EQ(FailureOf([&] { book.Call(L"CustomDocumentProperties"); }), Number(number));
        EXPECT_EQ(Application().Call(L"Name").Text(), L"Microsoft Excel");
    }
    session->Set("editing", "");
    EXPECT_TRUE(newEnabled());
    Application().Put(L"Interactive", Flag(false));
    EXPECT_FALSE(Application().Call(L"Interactive").Boolean());
}

TEST_F(HostModelsTest, ExcelCopiesUnderJustTheNameAndMindsExtensions)
{
    Start("excel");
    const std::wstring path = SavedFile(kHosts[2]);
    session->Open(path, false);
    const Script book = Application().Object(L"ActiveWorkbook");
    book.Call(L"SaveCopyAs", {std::wstring_view{folder.File(L"copy")}});
    EXPECT_EQ(ReadWholeFile(folder.File(L"copy")), ReadWholeFile(path));
    EXPECT_EQ(FailureOf([&] { book.Call(L"SaveCopyAs", {L"C:\\x.xlsx", 51L}); }), DISP_E_BADPARAMCOUNT);
    EXPECT_EQ(FailureOf([&] { book.Call(L"SaveAs", {std::wstring_view{folder.File(L"b.xls")}, 51L}); }), kExcelError);
}

TEST_F(HostModelsTest, OutlookShowsItsItemsInInspectorsAndSavesThemAsMessages)
{
    Start("outlook", L"14.0", {{"mail.subject", "Caf\xc3\xa9 \xe6\x97\xa5"}, {"mail.body", "Dear all"}});
    EXPECT_EQ(Application().Call(L"Name").Text(), L"Outlook");
    EXPECT_EQ(Application().Call(L"Version").Text(), L"14.0.0.4266");
    EXPECT_EQ(FailureOf([&] { Application().Call(L"Build"); }), DISP_E_UNKNOWNNAME);
    EXPECT_FALSE(Application().Call(L"ActiveInspector").Object());
    const Script item = Application().Object(L"CreateItem", {0L});
    EXPECT_FALSE(Application().Call(L"ActiveInspector").Object()) << "shown before it is displayed";
    item.Call(L"Display");
    item.Put(L"To", L"a@example.org");
    EXPECT_FALSE(item.Call(L"Saved").Boolean());
    EXPECT_EQ(Application().Object(L"ActiveInspector").Object(L"CurrentItem").Call(L"Body").Text(), L"Dear all");
    EXPECT_EQ(FailureOf([&] { item.Call(L"SaveAs", {std::wstring_view{folder.File(L"x")}, 4L}); }), E_INVALIDARG);
    for (const auto& [format, subject] : {std::pair{3L, L"Caf\u00e9 ?"}, {9L, L"Caf\u00e9 \u65e5"}}) {
        const std::wstring path = folder.File(L"m" + std::to_wstring(format));
        item.Call(L"SaveAs", {std::wstring_view{path}, format});
        session->Open(path + L".msg", false);
        const Script read = Application().Object(L"ActiveInspector").Object(L"CurrentItem");
        EXPECT_EQ(read.Call(L"Subject").Text(), subject);
        EXPECT_EQ(read.Call(L"To").Text(), L"a@example.org");
        read.Call(L"Close");
    }
}

} // namespace
} // namespace host::test
