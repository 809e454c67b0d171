#include "package/NewParts.h"

namespace host
{
namespace
{

constexpr std::string_view kTypes =
    R"(<Override PartName="/xl/worksheets/sheet1.xml" ContentType="@TYPE@.spreadsheetml.worksheet+xml"/>
)";

constexpr NewPart kParts[] = {
    {"xl/workbook.xml",
     R"(<workbook xmlns="http://schemas.openxmlformats.org/spreadsheetml/2006/main" xmlns:r="@REL@"><sheets>)"
     R"(<sheet name="Sheet1" sheetId="1" r:id="rId1"/></sheets></workbook>)"},
    {"xl/_rels/workbook.xml.rels",
     R"(<Relationships xmlns="http://schemas.openxmlformats.org/package/2006/relationships">)"
     R"(<Relationship Id="rId1" Type="@REL@/worksheet" Target="worksheets/sheet1.xml"/></Relationships>)"},
    {"xl/worksheets/sheet1.xml",
     R"(<worksheet xmlns="http://schemas.openxmlformats.org/spreadsheetml/2006/main"><sheetData><row r="1">)"
     R"(<c r="A1" t="inlineStr"><is><t xml:space="preserve">@TITLE@</t></is></c></row></sheetData></worksheet>)"},
};

constexpr NewPackage kPackage{"xl/workbook.xml", kTypes, kParts};

} // namespace

const NewPackage& NewWorkbook() { return kPackage; }

} // namespace host
