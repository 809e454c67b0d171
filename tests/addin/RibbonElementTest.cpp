#include "addin/RibbonElement.h"

#include <gtest/gtest.h>
#include <tuple>

namespace corvane
{
namespace
{

// Every caption is its own name behind an ampersand, so that a text shows where it came from and whether it is escaped.
const UICaptions kCaptions{L"&saveTo",       L"&saveToTip",   L"&delivActMenu", L"&delivActLabel", L"&gateDocMenu",
                           L"&gateDocLabel", L"&saveToTitle", L"&delivActTip",  L"&gateDocTip",    L"&relatedTip",
                           L"&product",      L"&helpMenu",    L"&helpLabel",    L"&helpTip",       L"&topicsLabel",
                           L"&topicsTip",    L"&aboutLabel",  L"&aboutTip"};

// One element a line, indented by its depth, with its attributes in order.
std::wstring Drawn(const RibbonElement& element, std::size_t depth = 0)
{
    std::wstring text = std::wstring(depth, L' ') + element.name;
    for (const auto& [name, value] : element.attributes)
        text += L" " + name + L"='" + value + L"'";
    text += L"\n";
    for (const RibbonElement& child : element.children)
        text += Drawn(child, depth + 1);
    return text;
}

const std::wstring kOfficeMenu = LR"(  officeMenu
   menu id='SaveToCorvane' insertAfterMso='FileSaveAsMenu' label='&&saveTo' imageMso='SaveAndClose' title='&&saveToTitle' visible='true' enabled='true' itemSize='large'
    button id='DelivAct' label='&&delivActMenu' imageMso='MasterDocument' description='&delivActTip' onAction='RibbonHandler'
    button id='Related' label='Save as Related Document...' imageMso='ReviewCompareMenu' description='&relatedTip' onAction='RibbonHandler'
    button id='GateDoc' label='&&gateDocMenu' imageMso='MasterDocument' description='&gateDocTip' onAction='RibbonHandler'
)";

const std::wstring kSharedTab = LR"(  tabs
   tab idQ='a:CorvaneOffice' label='&&product'
    group idQ='a:MSHelp' label='&&helpLabel' insertAfterQ='a:GoToCorvane' supertip='&helpMenu'
     menu idQ='a:AccHelp' label='&&helpMenu' imageMso='FunctionsLogicalInsertGallery' size='large'
)";

const std::wstring kOwnTab = LR"(  tabs
   tab id='CorvaneOffice' label='&&product'
    group id='MSHelp' label='&&helpLabel' supertip='&helpMenu'
     menu id='AccHelp' label='&&helpMenu' imageMso='FunctionsLogicalInsertGallery' size='large'
)";

const std::wstring kHelpButtons =
    LR"(      button id='CorvaneOfficeHelp' label='&&topicsLabel' imageMso='Help' screentip='MS Office Add-in Help' supertip='&topicsTip' onAction='RibbonHandler'
      button id='AboutCorvaneOffice' label='&&aboutLabel' imageMso='Info' screentip='About MS Office Add-in' supertip='&aboutTip' onAction='RibbonHandler'
)";

const std::wstring kBackstage = LR"( backstage
  tab id='TabSaveToCorvane' label='&&saveTo' insertAfterMso='TabPrint'
   firstColumn
    taskGroup id='TaskGroupSaveToCorvane' label=' '
     category id='CategorySaveToCorvane' label='&saveToTip'
      task id='DelivAct' label='&delivActLabel' imageMso='MasterDocument' onAction='RibbonHandler' isDefinitive='true'
      task id='Related' label='Save as Related Document' imageMso='ReviewCompareMenu' onAction='RibbonHandler' isDefinitive='true'
      task id='GateDoc' label='&gateDocLabel' imageMso='MasterDocument' onAction='RibbonHandler' isDefinitive='true'
)";

} // namespace

TEST(Ribbon, IsThatOfTheHost)
{
    const std::wstring sharedRoot = L"customUI xmlns:a='CorvaneNameSpace' onLoad='onLoad'\n ribbon\n";
    const std::wstring ownRoot = L"customUI\n ribbon\n";
    const std::tuple<const char*, int, RibbonTab, std::wstring> kCases[] = {
        {"OfficeMenu", 12, RibbonTab::Shared, sharedRoot + kOfficeMenu + kSharedTab + kHelpButtons},
        {"LastOfficeMenu", 13, RibbonTab::Shared, sharedRoot + kOfficeMenu + kSharedTab + kHelpButtons},
        {"Backstage", 14, RibbonTab::Shared, sharedRoot + kSharedTab + kHelpButtons + kBackstage},
        {"LaterBackstage", 16, RibbonTab::Shared, sharedRoot + kSharedTab + kHelpButtons + kBackstage},
        {"OfficeMenuWithOwnTab", 12, RibbonTab::Own, ownRoot + kOfficeMenu + kOwnTab + kHelpButtons},
        {"BackstageWithOwnTab", 14, RibbonTab::Own, ownRoot + kOwnTab + kHelpButtons + kBackstage},
    };
    for (const auto& [name, hostVersion, tab, expected] : kCases)
        EXPECT_EQ(Drawn(BuildRibbon(hostVersion, kCaptions, tab)), expected) << name;
}

TEST(RibbonButton, WritesWhatItHasInOrderAndKeepsItsLabelAndTips)
{
    RibbonElement parent{L"menu", {}, {}};
    RibbonButton button{L"1", L"2", L"3", L"4", L"5", L"6", L"7", L"8", L"9", L"10", L"11", L"12"};
    AddButton(parent, button);
    AddButton(parent, button);
    button.screentip.clear();
    AddButton(parent, button);
    EXPECT_EQ(Drawn(parent), LR"(menu
 button id='1' label='2' imageMso='3' description='11' screentip='4' supertip='5' getEnabled='6' getLabel='7' getScreentip='9' getSupertip='8' onAction='10' size='12'
 button label='2' screentip='4' supertip='5'
 button label='2' supertip='5'
)");
}

} // namespace corvane
