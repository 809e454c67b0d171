// The object model of each host, as a program written for it calls it.
#include <algorithm>

#include <gtest/gtest.h>

#include "Script.h"
#include "TemporaryFolder.h"
#include "automation/Text.h"
#include "documents/Storage.h"
#include "objects/Application.h"
#include "objects/Session.h"
#include "package/OfficePackage.h"
#include "package/Xml.h"

namespace host
{
namespace
{

using test::FailureOf;
using test::Script;

constexpr HRESULT Number(unsigned long bits) { return static_cast<HRESULT>(bits); }
constexpr HRESULT kExcelError = Number(0x800A03EC);

// How a host names what this test uses.
struct HostRow
{
    const char* option;
    const wchar_t* name;
    const wchar_t* active;
    const wchar_t* documents;
    HRESULT whenNoneIsActive; // S_OK: Nothing
    const wchar_t* newName;
    const wchar_t* saved; // under the name "a", by version 11 and 16
    const wchar_t* classic;
    HRESULT afterClosing;
    HRESULT readOnly;
    HRESULT final;
    HRESULT locked;
    HRESULT unknownFormat;
};

constexpr HostRow kHosts[] = {
    {"powerpoint", L"Microsoft PowerPoint", L"ActivePresentation", L"Presentations", kInvalidRequest, L"Presentation1",
     L"a.pptx", L"a.ppt", kInvalidRequest, E_FAIL, kInvalidRequest, E_FAIL, E_INVALIDARG},
    {"word", L"Microsoft Word", L"ActiveDocument", L"Documents", Number(0x800A1098), L"Document1", L"a.docx", L"a.doc",
     Number(0x800A16C1), Number(0x800A1423), Number(0x800A11FD), Number(0x800A14EC), Number(0x800A1200)},
    {"excel", L"Microsoft Excel", L"ActiveWorkbook", L"Workbooks", S_OK, L"Book1", L"a.xlsx", L"a.xls",
     Number(0x800401A8), kExcelError, kExcelError, kExcelError, kExcelError},
};

const HostRow& RowOf(const std::string& option) { return *std::ranges::find(kHosts, option, &HostRow::option); }

class HostModelsTest : public testing::Test
{
protected:
    void Start(const char* host, const wchar_t* version = L"16.0", Settings settings = {})
    {
        session.reset();
        Options options;
        options.host = FindHost(Widen(host))->kind;
        options.version = version;
        options.settings = std::move(settings);
        session = std::make_unique<Session>(options);
    }
    Script Application() { return Script{&session->Application()}; }
    static Value Flag(bool value) { return Value::OfBoolean(value); }

    // A file of the host that is not open any more.
    std::wstring SavedFile(const HostRow& row, const wchar_t* name = L"a")
    {
        session->New();
        const Script active = Application().Object(row.active);
        active.Call(L"SaveAs", {std::wstring_view{folder.File(name)}});
        const std::wstring path = active.Call(L"FullName").Text();
        active.Call(L"Close");
        return path;
    }
    static HRESULT AddProperty(const Script& document)
    {
        const Script properties = document.Object(L"CustomDocumentProperties");
        return FailureOf([&] { properties.Call(L"Add", {L"Id", Flag(false), 1L, 7L}); });
    }

    test::TemporaryFolder folder;
    std::unique_ptr<Session> session;
};

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
            EXPECT_EQ(active.Call(L"Saved").Type(), row.active == kHosts[0].active ? VT_I4 : VT_BOOL);
            active.Call(L"SaveAs", {std::wstring_view{folder.File(L"a")}});
            EXPECT_EQ(active.Call(L"Name").Text(), version == std::wstring_view{L"11.0"} ? row.classic : row.saved);
            EXPECT_EQ(active.Call(L"Path").Text(), folder.Path());
            EXPECT_EQ(FailureOf([&] { active.Call(L"Final"); }),
                      version == std::wstring_view{L"11.0"} ? DISP_E_UNKNOWNNAME : S_OK);
            active.Call(L"Close");
            EXPECT_EQ(FailureOf([&] { active.Call(L"Saved"); }), row.afterClosing);
        }
}

struct FormatRow
{
    const char* host;
    const wchar_t* version;
    long number;
    const wchar_t* extension; // null: refused
    const char* mark;         // the end of the main part's type, or of a text that only this format holds
};

constexpr FormatRow kFormats[] = {
    {"powerpoint", L"16.0", 26, L"potx", "presentationml.template.main+xml"},
    {"powerpoint", L"12.0", 30, L"ppam", "ms-powerpoint.addin.macroEnabled.main+xml"},
    {"powerpoint", L"16.0", 35, L"odp", "opendocument.presentation"},
    {"powerpoint", L"16.0", 7, L"pps", "PowerPoint Document"},
    {"powerpoint", L"11.0", 24, nullptr, ""},
    {"word", L"16.0", 0, L"doc", "WordDocument"},
    {"word", L"11.0", 1, L"dot", "WordDocument"},
    {"word", L"16.0", 6, L"rtf", "{\\rtf1"},
    {"word", L"12.0", 12, L"docx", "wordprocessingml.document.main+xml"},
    {"word", L"16.0", 13, L"docm", "ms-word.document.macroEnabled.main+xml"},
    {"word", L"16.0", 15, L"dotm", "ms-word.template.macroEnabledTemplate.main+xml"},
    {"word", L"16.0", 23, L"odt", "opendocument.text"},
    {"word", L"11.0", 12, nullptr, ""},
    {"excel", L"11.0", -4143, L"xls", "Workbook"},
    {"excel", L"11.0", 56, nullptr, ""},
    {"excel", L"12.0", 56, L"xls", "Workbook"},
    {"excel", L"12.0", -4143, nullptr, ""},
    {"excel", L"16.0", 50, L"xlsb", "ms-excel.sheet.binary.macroEnabled.main"},
    {"excel", L"16.0", 51, L"xlsx", "spreadsheetml.sheet.main+xml"},
    {"excel", L"16.0", 54, L"xltx", "spreadsheetml.template.main+xml"},
    {"excel", L"16.0", 6, L"csv", "\"Click to add title\"\r\n"},
    {"excel", L"16.0", 60, L"ods", "opendocument.spreadsheet"},
};

// What in the bytes tells the format; empty when a package's properties are not found in it.
std::string MarkOf(const std::string& bytes, const std::string& mark)
{
    if (IsStorage(bytes)) return StreamNamed(ReadStorage(bytes), Widen(mark)).empty() ? "" : mark;
    if (!bytes.starts_with("PK")) return bytes.substr(0, mark.size());
    const Zip zip = Zip::Parse(bytes);
    if (const std::string* type = zip.Find("mimetype"))
        return zip.Find("meta.xml")->find("meta:name=\"Id\"") == std::string::npos ? "" : *type;
    const OfficePackage package = OfficePackage::Parse(bytes);
    return package.CustomProperties().empty() ? "" : package.MainType();
}

TEST_F(HostModelsTest, WritesEachFormatSoThatItTellsWhichItIsOrRefusesIt)
{
    for (const FormatRow& row : kFormats) {
        SCOPED_TRACE(std::string{row.host} + Narrow(row.version) + " " + std::to_string(row.number));
        const HostRow& host = RowOf(row.host);
        Start(row.host, row.version);
        session->New();
        const Script active = Application().Object(host.active);
        EXPECT_EQ(AddProperty(active), S_OK);
        const auto save = [&] { active.Call(L"SaveAs", {std::wstring_view{folder.File(L"f")}, row.number}); };
        EXPECT_EQ(FailureOf(save), row.extension ? S_OK : host.unknownFormat);
        if (!row.extension) continue;
        const std::wstring path = folder.File(std::wstring{L"f."} + row.extension);
        EXPECT_EQ(active.Call(L"FullName").Text(), path);
        EXPECT_TRUE(MarkOf(ReadWholeFile(path), row.mark).ends_with(row.mark));
    }
}

TEST_F(HostModelsTest, PropertiesSurviveEveryFormatThatOpensAgain)
{
    for (const HostRow& row : kHosts)
        for (const wchar_t* version : {L"11.0", L"16.0"}) {
            Start(row.option, version);
            session->New();
            const Script active = Application().Object(row.active);
            EXPECT_EQ(AddProperty(active), S_OK);
            active.Call(L"SaveAs", {std::wstring_view{folder.File(L"p")}});
            const std::wstring path = active.Call(L"FullName").Text();
            active.Call(L"Close");
            Application().Object(row.documents).Call(L"Open", {std::wstring_view{path}});
            const Script again = Application().Object(row.active).Object(L"CustomDocumentProperties");
            EXPECT_EQ(again.Object(L"Item", {L"Id"}).Call(L"Value").Number(), 7) << row.option;
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

TEST_F(HostModelsTest, FinalDocumentIsNeitherWrittenNorEditedButCopied)
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

TEST_F(HostModelsTest, DocumentThatProgramsDoNotReachIsNotActive)
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

TEST_F(HostModelsTest, SeveralWindowsOfADocumentAreNumbered)
{
    Start("powerpoint", L"16.0", {{"document.windows", "2"}});
    session->New();
    const Script windows = Application().Object(L"Windows");
    EXPECT_EQ(windows.Call(L"Count").Number(), 2);
    EXPECT_EQ(windows.Object(L"Item", {2L}).Call(L"Caption").Text(), L"Presentation1:2");
}

TEST_F(HostModelsTest, WebDocumentIsKnownByItsAddressAndKeptInItsFile)
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

TEST_F(HostModelsTest, FailedSavesAreReportedAsEachHostDoes)
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

TEST_F(HostModelsTest, UnusualNamesAreKeptAsTheyAre)
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

TEST_F(HostModelsTest, FaultsAfterTheSaveLeaveNothingToUpload)
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
} // namespace host
