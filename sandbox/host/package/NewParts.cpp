#include "package/NewParts.h"

#include "base/Text.h"
#include "package/Xml.h"

namespace host
{
namespace
{

constexpr std::string_view kDeclaration = "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\n";

constexpr NewPart kCommonParts[] = {
    {"[Content_Types].xml",
     R"(<Types xmlns="http://schemas.openxmlformats.org/package/2006/content-types">
<Default Extension="rels" ContentType="application/vnd.openxmlformats-package.relationships+xml"/>
<Default Extension="xml" ContentType="application/xml"/>
@TYPES@<Override PartName="/docProps/core.xml" ContentType="application/vnd.openxmlformats-package.core-properties+xml"/>
<Override PartName="/docProps/app.xml" ContentType="@TYPE@.extended-properties+xml"/>
</Types>)"},
    {"_rels/.rels",
     R"(<Relationships xmlns="http://schemas.openxmlformats.org/package/2006/relationships">
<Relationship Id="rId1" Type="@REL@/officeDocument" Target="@MAIN@"/>
<Relationship Id="rId2" Type="http://schemas.openxmlformats.org/package/2006/relationships/metadata/core-properties" )"
     R"(Target="docProps/core.xml"/>
<Relationship Id="rId3" Type="@REL@/extended-properties" Target="docProps/app.xml"/>
</Relationships>)"},
};

constexpr NewPart kPropertyParts[] = {
    {"docProps/core.xml",
     R"(<cp:coreProperties xmlns:cp="http://schemas.openxmlformats.org/package/2006/metadata/core-properties" )"
     R"(xmlns:dc="http://purl.org/dc/elements/1.1/"><dc:title>@TITLE@</dc:title><dc:creator>@AUTHOR@</dc:creator>)"
     R"(<cp:lastModifiedBy>@AUTHOR@</cp:lastModifiedBy></cp:coreProperties>)"},
    {"docProps/app.xml",
     R"(<Properties xmlns="http://schemas.openxmlformats.org/officeDocument/2006/extended-properties"/>)"},
};

// One paragraph.
constexpr NewPart kTextParts[] = {
    {"word/document.xml",
     R"(<w:document xmlns:w="http://schemas.openxmlformats.org/wordprocessingml/2006/main"><w:body><w:p><w:r>)"
     R"(<w:t xml:space="preserve">@TITLE@</w:t></w:r></w:p><w:sectPr><w:pgSz w:w="11906" w:h="16838"/></w:sectPr>)"
     R"(</w:body></w:document>)"},
};

// One sheet with one cell.
constexpr NewPart kWorkbookParts[] = {
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

constexpr std::string_view kSheetTypes =
    R"(<Override PartName="/xl/worksheets/sheet1.xml" ContentType="@TYPE@.spreadsheetml.worksheet+xml"/>
)";

// The namespaces of every slide part.
constexpr std::string_view kSlideNamespaces =
    R"(xmlns:a="http://schemas.openxmlformats.org/drawingml/2006/main")"
    R"( xmlns:r="http://schemas.openxmlformats.org/officeDocument/2006/relationships")"
    R"( xmlns:p="http://schemas.openxmlformats.org/presentationml/2006/main")";

constexpr std::string_view kGroupHead =
    R"(<p:nvGrpSpPr><p:cNvPr id="1" name=""/><p:cNvGrpSpPr/><p:nvPr/></p:nvGrpSpPr><p:grpSpPr><a:xfrm>)"
    R"(<a:off x="0" y="0"/><a:ext cx="0" cy="0"/><a:chOff x="0" y="0"/><a:chExt cx="0" cy="0"/></a:xfrm></p:grpSpPr>)";

constexpr std::string_view kTitleFrame =
    R"(<p:spPr><a:xfrm><a:off x="1524000" y="2130425"/><a:ext cx="9144000" cy="1470025"/></a:xfrm>)"
    R"(<a:prstGeom prst="rect"><a:avLst/></a:prstGeom></p:spPr>)";

// The styles of a format scheme, which holds three of each: subtle, moderate, intense.
constexpr std::string_view kFill = R"(<a:solidFill><a:schemeClr val="phClr"/></a:solidFill>)";
constexpr std::string_view kLine = R"(<a:ln w="9525"><a:solidFill><a:schemeClr val="phClr"/></a:solidFill></a:ln>)";
constexpr std::string_view kEffect = R"(<a:effectStyle><a:effectLst/></a:effectStyle>)";

const NewPackage& NewPackageOf(HostKind host)
{
    static constexpr NewPackage kTextDocument{"word/document.xml", {}, kTextParts};
    static constexpr NewPackage kWorkbook{"xl/workbook.xml", kSheetTypes, kWorkbookParts};
    if (host == HostKind::Word) return kTextDocument;
    return host == HostKind::Excel ? kWorkbook : NewPresentation();
}

} // namespace

Zip NewPackageParts(HostKind host, std::string_view title, std::string_view author)
{
    const NewPackage& own = NewPackageOf(host);
    const std::pair<std::string_view, std::string> marks[] = {
        {"@TYPES@", std::string{own.types}},
        {"@MAIN@", std::string{own.mainPart}},
        {"@NS@", std::string{kSlideNamespaces}},
        {"@GROUP@", std::string{kGroupHead}},
        {"@TITLEFRAME@", std::string{kTitleFrame}},
        {"@REL@", "http://schemas.openxmlformats.org/officeDocument/2006/relationships"},
        {"@TYPE@", "application/vnd.openxmlformats-officedocument"},
        {"@FILL@", std::string{kFill}},
        {"@LINE@", std::string{kLine}},
        {"@EFFECT@", std::string{kEffect}},
        {"@TITLE@", EscapeXml(title)},
        {"@AUTHOR@", EscapeXml(author)},
    };
    Zip zip;
    for (const std::span<const NewPart> parts :
         {std::span<const NewPart>{kCommonParts}, own.parts, std::span<const NewPart>{kPropertyParts}})
        for (const NewPart& part : parts) {
            std::string text{part.text};
            for (const auto& [mark, by] : marks)
                text = Replaced(std::move(text), mark, by);
            zip.Set(part.name, std::string{kDeclaration} + text);
        }
    return zip;
}

} // namespace host
