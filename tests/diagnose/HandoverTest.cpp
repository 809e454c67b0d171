#include "diagnose/Diagnosis.h"
#include "diagnose/Masking.h"
#include "diagnose/Options.h"
#include "diagnose/TraceRules.h"
#include "diagnose/ZipArchive.h"

#include <gtest/gtest.h>

using namespace std::literals;

namespace diagnose
{

TEST(Options, AreTakenOnlyWhereTheyAreClear)
{
    const std::pair<std::vector<std::wstring>, bool> cases[] = {
        {{L"--server", L"s", L"--timeout", L"5", L"--switch-on", L"--json", L"--out", L"a.zip"}, true},
        {{L"--timeout", L"0"}, false},
        {{L"--out", L"--json"}, false},
        {{L"--desktop", L"--out", L"a.zip"}, false},
        {{L"--remove-traces", L"30"}, true},
        {{L"--remove-traces", L"thirty"}, false}, // a lenient 0 would remove all of them
        {{L"--remove-traces", L"-1"}, false},
        {{L"--remove-traces", L"1", L"--json"}, false},
    };
    for (const auto& [arguments, isClear] : cases)
        EXPECT_EQ(ReadOptions(arguments).has_value(), isClear) << arguments.size();
}

TEST(Handover, HoldsNoCredentials)
{
    EXPECT_EQ(Masked(L"--> x\tdana:p@ss@h \"k:w@h\" http://d:s@h/x dana@h"),
              L"--> x\t***@h \"***@h\" http://***@h/x dana@h");
    EXPECT_EQ(MaskedValue(L"d:s s@old=http://d:s@new"), L"***@old=http://***@new");
}

TEST(Handover, HoldsTheNewestTracesAndOfTheLastItsEnd)
{
    const TraceFile half{.name = L"", .size = kMostTraceBytes / 2 + 1, .written = 0};
    const auto ends = TracesToHandOn({half, half, half});
    ASSERT_EQ(ends.size(), 2U);
    EXPECT_EQ(std::pair(ends[0].from, ends[1].from), std::pair(std::uint64_t{0}, std::uint64_t{2}));
    EXPECT_EQ(TracesToHandOn(std::vector<TraceFile>(11)).size(), 10U);
    EXPECT_EQ(WithoutCutLine("na:secret@h\r\nnext\r\n"), "next\r\n");
}

TEST(Handover, IsAnArchiveOfTheFormatsLayout)
{
    // Written down from the format's description: the sum of "123456789" is the published check value.
    const std::string common = "\x14\0\0\x08\0\0\xBE\x6B\x9F\x5D\x26\x39\xF4\xCB\x09\0\0\0\x09\0\0\0\x03\0\0\0"s;
    EXPECT_EQ(ZipArchive({{"a/b", "123456789", {2026, 12, 31, 13, 29, 60}}}),
              "PK\3\4" + common + "a/b123456789PK\1\2\x14\0"s + common + std::string(14, '\0') +
                  "a/bPK\5\6\0\0\0\0\1\0\1\0"s + "\x31\0\0\0\x2A\0\0\0\0\0"s);
}

TEST(Json, EscapesWhatWouldEndAText)
{
    Diagnosis diagnosis;
    diagnosis.findings = {L"\"C:\\x\"\r\n"};
    EXPECT_NE(JsonOf(diagnosis).find(LR"("findings":["\"C:\\x\"\u000d\u000a"]})"), std::wstring::npos);
}

} // namespace diagnose
