#include "package/NewParts.h"

namespace host
{
namespace
{

constexpr std::string_view kTypes =
    R"(<Override PartName="/ppt/slideMasters/slideMaster1.xml" ContentType="@TYPE@.presentationml.slideMaster+xml"/>
<Override PartName="/ppt/slideLayouts/slideLayout1.xml" ContentType="@TYPE@.presentationml.slideLayout+xml"/>
<Override PartName="/ppt/slides/slide1.xml" ContentType="@TYPE@.presentationml.slide+xml"/>
<Override PartName="/ppt/theme/theme1.xml" ContentType="@TYPE@.theme+xml"/>
<Override PartName="/ppt/presProps.xml" ContentType="@TYPE@.presentationml.presProps+xml"/>
)";

constexpr NewPart kParts[] = {
    {"ppt/presentation.xml",
     R"(<p:presentation @NS@><p:sldMasterIdLst><p:sldMasterId id="2147483648" r:id="rId1"/></p:sldMasterIdLst>)"
     R"(<p:sldIdLst><p:sldId id="256" r:id="rId2"/></p:sldIdLst><p:sldSz cx="12192000" cy="6858000"/>)"
     R"(<p:notesSz cx="6858000" cy="9144000"/></p:presentation>)"},
    {"ppt/_rels/presentation.xml.rels",
     R"(<Relationships xmlns="http://schemas.openxmlformats.org/package/2006/relationships">
<Relationship Id="rId1" Type="@REL@/slideMaster" Target="slideMasters/slideMaster1.xml"/>
<Relationship Id="rId2" Type="@REL@/slide" Target="slides/slide1.xml"/>
<Relationship Id="rId3" Type="@REL@/presProps" Target="presProps.xml"/>
<Relationship Id="rId4" Type="@REL@/theme" Target="theme/theme1.xml"/>
</Relationships>)"},
    {"ppt/presProps.xml", R"(<p:presentationPr @NS@/>)"},
    {"ppt/slides/slide1.xml",
     R"(<p:sld @NS@><p:cSld><p:spTree>@GROUP@<p:sp><p:nvSpPr><p:cNvPr id="2" name="Title 1"/>)"
     R"(<p:cNvSpPr><a:spLocks noGrp="1"/></p:cNvSpPr><p:nvPr><p:ph type="ctrTitle"/></p:nvPr></p:nvSpPr><p:spPr/>)"
     R"(<p:txBody><a:bodyPr/><a:lstStyle/><a:p><a:r><a:rPr lang="en-US"/><a:t>@TITLE@</a:t></a:r></a:p></p:txBody>)"
     R"(</p:sp></p:spTree></p:cSld><p:clrMapOvr><a:masterClrMapping/></p:clrMapOvr></p:sld>)"},
    {"ppt/slides/_rels/slide1.xml.rels",
     R"(<Relationships xmlns="http://schemas.openxmlformats.org/package/2006/relationships">)"
     R"(<Relationship Id="rId1" Type="@REL@/slideLayout" Target="../slideLayouts/slideLayout1.xml"/></Relationships>)"},
    {"ppt/slideLayouts/slideLayout1.xml",
     R"(<p:sldLayout @NS@ type="title" preserve="1"><p:cSld name="Title Slide"><p:spTree>@GROUP@<p:sp><p:nvSpPr>)"
     R"(<p:cNvPr id="2" name="Title 1"/><p:cNvSpPr><a:spLocks noGrp="1"/></p:cNvSpPr><p:nvPr><p:ph type="ctrTitle"/>)"
     R"(</p:nvPr></p:nvSpPr>@TITLEFRAME@<p:txBody><a:bodyPr anchor="ctr"/><a:lstStyle/><a:p>)"
     R"(<a:r><a:rPr lang="en-US"/><a:t>Title</a:t></a:r></a:p></p:txBody></p:sp></p:spTree></p:cSld>)"
     R"(<p:clrMapOvr><a:masterClrMapping/></p:clrMapOvr></p:sldLayout>)"},
    {"ppt/slideLayouts/_rels/slideLayout1.xml.rels",
     R"(<Relationships xmlns="http://schemas.openxmlformats.org/package/2006/relationships">)"
     R"(<Relationship Id="rId1" Type="@REL@/slideMaster" Target="../slideMasters/slideMaster1.xml"/></Relationships>)"},
    {"ppt/slideMasters/slideMaster1.xml",
     R"(<p:sldMaster @NS@><p:cSld><p:bg><p:bgRef idx="1001"><a:schemeClr val="bg1"/></p:bgRef></p:bg><p:spTree>@GROUP@)"
     R"(<p:sp><p:nvSpPr><p:cNvPr id="2" name="Title 1"/><p:cNvSpPr><a:spLocks noGrp="1"/></p:cNvSpPr>)"
     R"(<p:nvPr><p:ph type="title"/></p:nvPr></p:nvSpPr>@TITLEFRAME@<p:txBody><a:bodyPr/><a:lstStyle/><a:p><a:r>)"
     R"(<a:rPr lang="en-US"/><a:t>Title</a:t></a:r></a:p></p:txBody></p:sp></p:spTree></p:cSld>)"
     R"(<p:clrMap bg1="lt1" tx1="dk1" bg2="lt2" tx2="dk2" accent1="accent1" accent2="accent2" accent3="accent3" )"
     R"(accent4="accent4" accent5="accent5" accent6="accent6" hlink="hlink" folHlink="folHlink"/>)"
     R"(<p:sldLayoutIdLst><p:sldLayoutId id="2147483649" r:id="rId1"/></p:sldLayoutIdLst><p:txStyles><p:titleStyle>)"
     R"(<a:lvl1pPr algn="ctr"><a:defRPr sz="4400"><a:solidFill><a:schemeClr val="tx1"/></a:solidFill>)"
     R"(<a:latin typeface="+mj-lt"/></a:defRPr></a:lvl1pPr></p:titleStyle><p:bodyStyle/><p:otherStyle/></p:txStyles>)"
     R"(</p:sldMaster>)"},
    {"ppt/slideMasters/_rels/slideMaster1.xml.rels",
     R"(<Relationships xmlns="http://schemas.openxmlformats.org/package/2006/relationships">
<Relationship Id="rId1" Type="@REL@/slideLayout" Target="../slideLayouts/slideLayout1.xml"/>
<Relationship Id="rId2" Type="@REL@/theme" Target="../theme/theme1.xml"/>
</Relationships>)"},
    {"ppt/theme/theme1.xml",
     R"(<a:theme xmlns:a="http://schemas.openxmlformats.org/drawingml/2006/main" name="Plain"><a:themeElements>)"
     R"(<a:clrScheme name="Plain"><a:dk1><a:srgbClr val="202020"/></a:dk1><a:lt1><a:srgbClr val="FFFFFF"/></a:lt1>)"
     R"(<a:dk2><a:srgbClr val="3B3B3B"/></a:dk2><a:lt2><a:srgbClr val="E8E8E8"/></a:lt2>)"
     R"(<a:accent1><a:srgbClr val="B7472A"/></a:accent1><a:accent2><a:srgbClr val="2A6FB7"/></a:accent2>)"
     R"(<a:accent3><a:srgbClr val="3F8F4F"/></a:accent3><a:accent4><a:srgbClr val="C79A2B"/></a:accent4>)"
     R"(<a:accent5><a:srgbClr val="7A4FA0"/></a:accent5><a:accent6><a:srgbClr val="5B5B5B"/></a:accent6>)"
     R"(<a:hlink><a:srgbClr val="2A6FB7"/></a:hlink><a:folHlink><a:srgbClr val="7A4FA0"/></a:folHlink></a:clrScheme>)"
     R"(<a:fontScheme name="Plain"><a:majorFont><a:latin typeface="Calibri"/><a:ea typeface=""/><a:cs typeface=""/>)"
     R"(</a:majorFont><a:minorFont><a:latin typeface="Calibri"/><a:ea typeface=""/><a:cs typeface=""/></a:minorFont>)"
     R"(</a:fontScheme><a:fmtScheme name="Plain"><a:fillStyleLst>@FILL@@FILL@@FILL@</a:fillStyleLst><a:lnStyleLst>@LINE@@LINE@@LINE@)"
     R"(</a:lnStyleLst><a:effectStyleLst>@EFFECT@@EFFECT@@EFFECT@</a:effectStyleLst><a:bgFillStyleLst>@FILL@@FILL@@FILL@</a:bgFillStyleLst>)"
     R"(</a:fmtScheme></a:themeElements></a:theme>)"},
};

constexpr NewPackage kPackage{"ppt/presentation.xml", kTypes, kParts};

} // namespace

const NewPackage& NewPresentation() { return kPackage; }

} // namespace host
