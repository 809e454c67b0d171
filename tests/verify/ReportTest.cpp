#include "judge/LoadTimes.h"
#include "judge/PageText.h"
#include "judge/Questions.h"
#include "machine/Suits.h"

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

TEST(Questions, AreAnsweredWhenAllTheirScenariosPassInARealHost)
{
    const auto questions = QuestionsIn("| x |\n|-|\n| y |\n## A\n| Question | Scenarios |\n|--|\n| Q1 | `a`, `b` |\n"
                                       "## B\n| Question | Check | Minutes |\n|--|\n| Q2 | look | 5 |\n");
    const auto text = [&](Verdict second, bool real) {
        const std::vector<Result> results{{.name = "a", .about = ""}, {.name = "b", .about = "", .verdict = second}};
        return QuestionsText({.facts = {}, .results = {}, .questions = Answered(questions, results, real)});
    };
    EXPECT_EQ(text(Verdict::Passed, true), "\nA\n  [x] Q1: answered by a, b\n\nB\n  [ ] Q2: look (5 min)\n");
    EXPECT_EQ(text(Verdict::Passed, false).find("[x]"), std::string::npos);
    EXPECT_EQ(text(Verdict::Failed, true).find("[x]"), std::string::npos);
}

TEST(Questions, EachOfThePageIsAPersonsOrThatOfScenariosThatCanAnswerIt)
{
    const auto questions = QuestionsIn(QuestionsText());
    EXPECT_GE(questions.size(), 60U);
    for (const auto& one : questions) {
        EXPECT_EQ(one.scenarios.empty(), !one.check.empty() && std::stoi("0" + one.minutes) > 0) << one.name;
        for (const auto& name : one.scenarios)
            EXPECT_TRUE(std::filesystem::exists(SCENARIOS "/" + name + ".txt")) << name;
    }
}

TEST(ForeignHosts, TakeNoOrdersAndTellByTheTrace)
{
    const auto scenario = ReadScenario("x", "#! run --trace\n#! set WORD=a\n");
    EXPECT_EQ(WhyNotInForeignHost(scenario, false), "");
    EXPECT_NE(WhyNotInForeignHost(scenario, true), "");
    EXPECT_NE(WhyNotInForeignHost(ReadScenario("x", "#! set outlook=new"), false), "");
    EXPECT_EQ(WhyNotInForeignHost(ReadScenario("x", "#! set mail.client=outlook\nnew\ndisconnect"), false), "");
    EXPECT_NE(WhyNotInForeignHost(ReadScenario("x", "new\ndisconnect\n"), true), "");
    const std::string trace = "2026-05-04 23:59:59\t--> Connect.AddinInstance_OnConnection\r\n"
                              "2026-05-05 00:00:01\t<-- Connect.AddinInstance_OnConnection\r\n";
    EXPECT_EQ(LoadTimesText({"-"}, {trace, "-"}), "at most 3 s in 1 start");
    const std::string id = "connected CorvaneMSOfficePowerPoint.Connect in ";
    EXPECT_EQ(LoadTimesText({id + "12 ms\n", id + "3 ms\n"}, {trace}), "3 to 12 ms in 2 starts");
}

TEST(Scenarios, ChecksAreWordedAsTheHostNamesANewPresentation)
{
    const auto scenario = ReadScenario("x.txt", "#> POST x|P8=Presentation1%2Epptx\n#= bound Presentation12.pptx\n"
                                                "#= trace Presentations\n");
    const auto worded = [&](const char* name) {
        const auto words = Worded(scenario, name);
        return words.requests[0] + "; " + words.checks[0].rest + "; " + words.checks[1].rest;
    };
    EXPECT_EQ(worded("Präsentation"), "POST x|P8=Präsentation1%2Epptx; Präsentation12.pptx; Presentations");
    EXPECT_EQ(worded("Bản 報"), "POST x|P8=B%E1%BA%A3n+%E5%A0%B11%2Epptx; Bản 報12.pptx; Presentations");
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
