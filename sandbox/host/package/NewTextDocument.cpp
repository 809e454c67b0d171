#include "package/NewParts.h"

namespace host
{
namespace
{

constexpr NewPart kParts[] = {
    {"word/document.xml",
     R"(<w:document xmlns:w="http://schemas.openxmlformats.org/wordprocessingml/2006/main"><w:body><w:p><w:r>)"
     R"(<w:t xml:space="preserve">@TITLE@</w:t></w:r></w:p><w:sectPr><w:pgSz w:w="11906" w:h="16838"/></w:sectPr>)"
     R"(</w:body></w:document>)"},
};

constexpr NewPackage kPackage{"word/document.xml", {}, kParts};

} // namespace

const NewPackage& NewTextDocument() { return kPackage; }

} // namespace host
