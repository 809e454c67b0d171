// The formats that each host writes.
#include <algorithm>

#include "HostTest.h"
#include "documents/Storage.h"
#include "package/OfficePackage.h"

namespace host::test
{
namespace
{

class FormatsTest : public HostTest
{};

// How a host names its active document, and what it says of a format that it does not write.
struct HostRow
{
    std::string_view option;
    const wchar_t* active;
    unsigned long unknownFormat;
};

constexpr HostRow kHosts[] = {
    {"powerpoint", L"ActivePresentation", 0x80070057},
    {"word", L"ActiveDocument", 0x800A1200},
    {"excel", L"ActiveWorkbook", 0x800A03EC},
};

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
    {"excel", L"16.0", 6, L"csv", "\"Book1\"\r\n"},
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

TEST_F(FormatsTest, WritesEachFormatSoThatItTellsWhichItIsOrRefusesIt)
{
    for (const FormatRow& row : kFormats) {
        SCOPED_TRACE(std::string{row.host} + Narrow(row.version) + " " + std::to_string(row.number));
        const HostRow& host = *std::ranges::find(kHosts, row.host, &HostRow::option);
        Start(row.host, row.version);
        session->New();
        const Script active = Application().Object(host.active);
        active.Object(L"CustomDocumentProperties").Call(L"Add", {L"Id", Value::OfBoolean(false), 1L, 7L});
        const auto save = [&] { active.Call(L"SaveAs", {std::wstring_view{folder.File(L"f")}, row.number}); };
        EXPECT_EQ(FailureOf(save), row.extension ? S_OK : static_cast<HRESULT>(host.unknownFormat));
        if (!row.extension) continue;
        const std::wstring path = folder.File(std::wstring{L"f."} + row.extension);
        EXPECT_EQ(active.Call(L"FullName").Text(), path);
        EXPECT_TRUE(MarkOf(ReadWholeFile(path), row.mark).ends_with(row.mark));
    }
}

} // namespace
} // namespace host::test
