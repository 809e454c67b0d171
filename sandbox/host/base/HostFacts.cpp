#include "base/HostFacts.h"

#include <algorithm>
#include <iterator>

#include "base/Text.h"

namespace host
{
namespace
{

using namespace std::string_view_literals;

constexpr int kEveryVersion = 99;

constexpr HostFacts kHosts[] = {
    {.kind = HostKind::PowerPoint,
     .name = L"Microsoft PowerPoint",
     .product = L"PowerPoint",
     .ribbonId = L"Microsoft.PowerPoint.Presentation",
     .noun = L"presentation",
     .newName = L"Presentation",
     .pageWidth = 16,
     .pageHeight = 9,
     .status = L"Slide 1 of 1",
     .fileTypes = L"Presentations\0*.pptx;*.pptm;*.ppsx;*.ppt\0All files\0*.*\0"sv,
     .lastMarkingVersion = kEveryVersion},
    {.kind = HostKind::Word,
     .name = L"Microsoft Word",
     .product = L"Word",
     .ribbonId = L"Microsoft.Word.Document",
     .noun = L"document",
     .newName = L"Document",
     .pageWidth = 210,
     .pageHeight = 297,
     .status = L"Page 1 of 1",
     .fileTypes = L"Documents\0*.docx;*.docm;*.dotx;*.doc\0All files\0*.*\0"sv,
     .savesOnlyChanges = true,
     .asksForName = true},
    {.kind = HostKind::Excel,
     .name = L"Microsoft Excel",
     .product = L"Excel",
     .ribbonId = L"Microsoft.Excel.Workbook",
     .noun = L"workbook",
     .newName = L"Book",
     .menuBar = L"Worksheet Menu Bar",
     .pageWidth = 16,
     .pageHeight = 10,
     .status = L"Sheet1",
     .fileTypes = L"Workbooks\0*.xlsx;*.xlsm;*.xlsb;*.xls\0All files\0*.*\0"sv,
     .pathLimit = 218,
     .lastMarkingVersion = 11,
     .savesOnlyChanges = true},
    {.kind = HostKind::Outlook,
     .name = L"Outlook",
     .product = L"Outlook",
     .ribbonId = L"Microsoft.Outlook.Mail.Compose",
     .noun = L"item",
     .newName = L"Untitled",
     .numbersNew = false,
     .versionEnd = L".0.4266",
     .pageWidth = 4,
     .pageHeight = 3,
     .status = L"Message",
     .fileTypes = L"Messages\0*.msg\0All files\0*.*\0"sv,
     .asksForName = true},
};

} // namespace

const HostFacts& FactsOf(HostKind kind) { return *std::ranges::find(kHosts, kind, &HostFacts::kind); }

const HostFacts* FindHost(std::wstring_view option)
{
    const auto found =
        std::ranges::find_if(kHosts, [&](const HostFacts& one) { return SameText(one.product, option); });
    return found == std::end(kHosts) ? nullptr : &*found;
}

} // namespace host
