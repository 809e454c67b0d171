#include "judge/Report.h"
#include "judge/Scenario.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace verify
{
namespace
{

const Report kReport{
    .facts = {{"Add-in", "1 & 2"}},
    .results = {{.name = "good", .about = "All is well.", .seconds = 1.26, .remarks = {"0.5 % of a core"}},
                {.name = "bad",
                 .about = "It ends.",
                 .verdict = Verdict::Failed,
                 .seconds = 2,
                 .words = "versions: <2>",
                 .pictures = {{"end.png", "png"}}},
                {.name = "share", .about = "", .verdict = Verdict::NotHere, .words = "there is no share"}}};

TEST(Reports, ALineForEachScenarioAndOneForAll)
{
    EXPECT_EQ(ReportText(kReport),
              "Add-in: 1 & 2\n\nok good 1.3 s\n  0.5 % of a core\nFAILED bad 2.0 s\nversions: <2>\n"
              "not here share: there is no share\n1 passed, 1 failed, 1 not here\n");
    EXPECT_EQ(SummaryText({}), "0 passed, 0 failed");
}

TEST(Reports, NothingPlayedIsNoSuccess)
{
    EXPECT_FALSE(Report{}.AllPassed());
    EXPECT_FALSE(kReport.AllPassed());
    EXPECT_FALSE((Report{.facts = {}, .results = {kReport.results.back()}}.AllPassed()));
    EXPECT_TRUE((Report{.facts = {}, .results = {kReport.results.front(), kReport.results.back()}}.AllPassed()));
}

TEST(Reports, ThePageShowsWhatFailedFirstAndEscapesIt)
{
    const auto page = ReportPage(kReport);
    EXPECT_LT(page.find("<h2>bad"), page.find("<h2>good"));
    EXPECT_NE(page.find("versions: &lt;2&gt;"), std::string::npos);
    EXPECT_NE(page.find("data:image/png;base64,cG5n"), std::string::npos);
    EXPECT_EQ(page.find("{{"), std::string::npos);
    const auto json = nlohmann::json::parse(ReportJson(kReport));
    EXPECT_EQ(json["failed"], 1);
    EXPECT_EQ(json["results"][1]["pictures"][0], "bad/end.png");
}

TEST(Scenarios, HeadAndTailAreReadWhereverTheyStand)
{
    const auto scenario =
        ReadScenario("folder/a name.txt", "# x\n#! set A=1\nnew\n#! set B=2\r\n#= trace a b\n#>  GET x\n");
    EXPECT_EQ(scenario.name, "a name");
    EXPECT_EQ(scenario.All("set"), (std::vector<std::string>{"A=1", "B=2"}));
    EXPECT_EQ(scenario.One("user", "Dana"), "Dana");
    EXPECT_TRUE(scenario.IsChecked("trace"));
    EXPECT_EQ(scenario.checks.at(0).rest, "a b");
    EXPECT_EQ(scenario.requests.at(0), "GET x");
}

} // namespace
} // namespace verify
