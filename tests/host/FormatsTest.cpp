// The formats that each host writes.
#include <algorithm>

#include "HostTest.h"
#include "documents/CompoundFile.h"
#include "package/OfficePackage.h"

namespace host::test
{
namespace
{

using corvane::LateBound;

class FormatsTest : public HostTest
{};

// How a host names its active document, and what it says of a format that it does not write.
struct HostRow
{
    std::string_view option;
    const wchar_t* active;
    std::int32_t unknownFormat;
};

constexpr HostRow kHosts[] = {
    {"powerpoint", L"ActivePresentation", E_INVALIDARG},
    {"word", L"ActiveDocument", 4608},
    {"excel", L"ActiveWorkbook", 1004},
};

struct FormatRow
{
    const char* host;
    const wchar_t* version;
    long number;
    const wchar_t* extension; // null: refused
    const char* mark;         // the end of the main part's type, or the name of the main stream
};

constexpr FormatRow kFormats[] = {
    {"powerpoint", L"16.0", 26, L"potx", "presentationml.template.main+xml"},
    {"powerpoint", L"12.0", 30, L"ppam", "ms-powerpoint.addin.macroEnabled.main+xml"},
    {"powerpoint", L"16.0", 7, L"pps", "PowerPoint Document"},
    {"powerpoint", L"11.0", 24, nullptr, ""},
    {"word", L"16.0", 0, L"doc", "WordDocument"},
    {"word", L"11.0", 1, L"dot", "WordDocument"},
    {"word", L"12.0", 12, L"docx", "wordprocessingml.document.main+xml"},
    {"word", L"16.0", 13, L"docm", "ms-word.document.macroEnabled.main+xml"},
    {"word", L"16.0", 15, L"dotm", "ms-word.template.macroEnabledTemplate.main+xml"},
    {"word", L"11.0", 12, nullptr, ""},
    {"excel", L"11.0", -4143, L"xls", "Workbook"},
    {"excel", L"11.0", 56, nullptr, ""},
    {"excel", L"12.0", 56, L"xls", "Workbook"},
    {"excel", L"12.0", -4143, nullptr, ""},
    {"excel", L"16.0", 50, L"xlsb", "ms-excel.sheet.binary.macroEnabled.main"},
    {"excel", L"16.0", 51, L"xlsx", "spreadsheetml.sheet.main+xml"},
    {"excel", L"16.0", 54, L"xltx", "spreadsheetml.template.main+xml"},
};

// What in the bytes tells the format; empty when a package's properties are not found in it.
std::string MarkOf(const std::string& bytes, const std::string& mark)
{
    if (IsStorage(bytes)) return StreamNamed(ReadStorage(bytes), Widen(mark)).empty() ? "" : mark;
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
        const LateBound active = Application().Object(host.active);
        active.Object(L"CustomDocumentProperties").Call(L"Add", L"Id", false, 1, 7);
        const auto failure = corvane::Catch([&] { active.Call(L"SaveAs", folder.File(L"f"), row.number); });
        EXPECT_EQ(failure ? failure->Number() : 0, row.extension != nullptr ? 0 : host.unknownFormat);
        if (failure) continue;
        const std::wstring path = folder.File(std::wstring{L"f."} + row.extension);
        EXPECT_EQ(active.Text(L"FullName"), path);
        EXPECT_TRUE(MarkOf(ReadWholeFile(path), row.mark).ends_with(row.mark));
    }
}

} // namespace
} // namespace host::test
