#include "ribbon/Ribbon.h"

#include <stdexcept>

#include <gtest/gtest.h>

namespace host
{
namespace
{

std::string Document(const std::string& year, const std::string& inner)
{
    const char* space = year == "2007" ? "http://schemas.microsoft.com/office/2006/01/customui"
                                       : "http://schemas.microsoft.com/office/2009/07/customui";
    return std::string{"<customUI xmlns=\""} + space + "\" xmlns:a=\"N\" onLoad=\"onLoad\">" + inner + "</customUI>";
}

std::string Tabs(const std::string& inner) { return "<ribbon><tabs>" + inner + "</tabs></ribbon>"; }

TEST(RibbonTest, FindsControlsInEveryPlace)
{
    const Ribbon ribbon = ReadRibbon(
        Document("2010", Tabs(R"(<tab idQ="a:T" label="R&amp;&amp;D"><group id="g" label="G"><menu id="m" label="M">)"
                              R"(<button id="b" label="B" onAction="Go" tag="x"/></menu></group></tab>)") +
                             R"(<backstage><tab id="p" label="P"><firstColumn><taskGroup id="tg" label=" ">)"
                             R"(<category id="c" label="C"><task id="t" label="T"/></category></taskGroup>)"
                             R"(</firstColumn></tab></backstage>)"),
        16);
    EXPECT_EQ(ribbon.onLoad, "onLoad");
    EXPECT_EQ(ribbon.tabs.at(0).id, "a:T");
    EXPECT_EQ(ribbon.tabs.at(0).Label(), "R&D");
    ASSERT_NE(ribbon.Find("b"), nullptr);
    EXPECT_EQ(ribbon.Find("b")->Attribute("onAction"), "Go");
    ASSERT_NE(ribbon.Find("t"), nullptr);
    EXPECT_EQ(ribbon.Find("B"), nullptr) << "ids are case-sensitive";
}

struct RefusedRibbon
{
    const char* name;
    int version;
    std::string xml;
};

class RefusedRibbonTest : public testing::TestWithParam<RefusedRibbon>
{};

TEST_P(RefusedRibbonTest, IsRefusedAsOfficeDoes)
{
    EXPECT_THROW(static_cast<void>(ReadRibbon(GetParam().xml, GetParam().version)), std::runtime_error);
}

const RefusedRibbon kRefused[] = {
    {"NewNamespaceInOldHost", 12, Document("2010", Tabs("<tab id='t' label='T'/>"))},
    {"BackstageInOldNamespace", 16, Document("2007", "<backstage/>")},
    {"BackstageBeforeRibbon", 16, Document("2010", "<backstage/>" + Tabs("<tab id='t' label='T'/>"))},
    {"EmptyLabel", 16, Document("2010", Tabs("<tab id='t' label=''/>"))},
    {"EmptyTabs", 16, Document("2010", Tabs(""))},
    {"DoubleId", 16, Document("2010", Tabs("<tab id='t' label='T'/><tab id='t' label='U'/>"))},
    {"TaskOutsideItsCategory", 16,
     Document("2010", "<backstage><tab id='t' label='T'><task id='x'/></tab></backstage>")},
    {"ButtonWithoutId", 16, Document("2010", Tabs("<tab id='t'><group id='g'><button label='B'/></group></tab>"))},
    {"NotWellFormed", 16, "<customUI"},
};

INSTANTIATE_TEST_SUITE_P(RibbonTest, RefusedRibbonTest, testing::ValuesIn(kRefused),
                         [](const auto& given) { return std::string{given.param.name}; });

TEST(RibbonTest, OldNamespaceWithOfficeMenuSuitsEveryRibbonHost)
{
    const std::string xml =
        Document("2007", "<ribbon><officeMenu><menu id='m' label='M'><button id='b' label='B'/></menu>"
                         "</officeMenu><tabs><tab id='t' label='T'/></tabs></ribbon>");
    EXPECT_EQ(ReadRibbon(xml, 12).officeMenu.size(), 1u);
    EXPECT_NE(ReadRibbon(xml, 16).Find("b"), nullptr);
}

TEST(RibbonTest, LabelsLoseTheirAccessKeyMarks)
{
    EXPECT_EQ(PlainLabel("&Save && Send"), "Save & Send");
    EXPECT_EQ(PlainLabel("trailing&"), "trailing");
}

} // namespace
} // namespace host
