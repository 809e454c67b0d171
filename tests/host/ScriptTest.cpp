#include "player/Script.h"

#include "platform/Utf8.h"

#include <gtest/gtest.h>

namespace corvane::player
{
namespace
{

std::vector<Step> Parse(std::string_view text, const Settings& settings = {})
{
    static const std::vector<StepRow> rows = AllSteps();
    return ParseScript(text, settings, rows);
}

TEST(ScriptTest, ReadsStepsWithQuotesSettingsAndComments)
{
    const auto steps = Parse("\xef\xbb\xbf# a save\r\n\r\n  open \"C:\\my decks\\${FILE}\"   # the file\r\n"
                             "expect txtName \"say \"\"hi\"\" # not a comment\"\r\ntype txtNotes \"one\" \"two\"\n"
                             "expect cmdSave disabled\nexpect txtName \"disabled\"\ntype txtNotes \"\"",
                             {{"FILE", "a \"b\".pptx"}});
    ASSERT_EQ(steps.size(), 6u);
    EXPECT_EQ(steps[0].line, 3);
    EXPECT_EQ(steps[0].source, L"open \"C:\\my decks\\${FILE}\"   # the file");
    EXPECT_EQ(steps[0].At(0), L"C:\\my decks\\a \"b\".pptx");
    EXPECT_EQ(steps[0].words.size(), 1u);
    EXPECT_EQ(steps[1].At(1), L"say \"hi\" # not a comment");
    EXPECT_EQ(steps[2].Lines(1), L"one\r\ntwo");
    EXPECT_FALSE(steps[3].words[1].quoted);
    EXPECT_TRUE(steps[4].words[1].quoted);
    EXPECT_EQ(steps[5].Lines(1), L"");
}

struct BadLine
{
    const char* name;
    const char* line;
};

class BadLineTest : public testing::TestWithParam<BadLine>
{};

TEST_P(BadLineTest, IsReportedWithItsNumberBeforeAnythingRuns)
{
    try {
        static_cast<void>(Parse(std::string{"new\n\n"} + GetParam().line + "\nquit\n"));
        FAIL() << "accepted";
    } catch (const ScriptError& error) {
        EXPECT_EQ(error.Line(), 3);
        EXPECT_EQ(ToUtf8(error.Source()), GetParam().line);
    }
}

constexpr BadLine kBadLines[] = {
    {"UnknownVerb", "click cmdGo"},        {"MissingWord", "press"},
    {"WordTooMany", "closed frmX frmY"},   {"UnknownSetting", "open ${NOPE}"},
    {"OpenQuote", "type a \"text"},        {"OpenSetting", "open \"${SERVER\""},
    {"StateMissing", "expect chkPublish"}, {"SecondWordOfNoStep", "no window"},
};

INSTANTIATE_TEST_SUITE_P(ScriptTest, BadLineTest, testing::ValuesIn(kBadLines),
                         [](const auto& given) { return std::string{given.param.name}; });

TEST(ScriptTest, SplitsTreePathsAtSlashesThatAreNotEscaped)
{
    const std::vector<std::wstring> expected = {L"Apollo", L"Risk/Reward", L"a\\b"};
    EXPECT_EQ(SplitTreePath(L"Apollo/Risk\\/Reward/a\\b"), expected);
}

} // namespace
} // namespace corvane::player
