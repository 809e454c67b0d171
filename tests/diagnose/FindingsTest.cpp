#include "diagnose/OfficeRules.h"
#include "diagnose/ProgramBits.h"

#include <gtest/gtest.h>

#include <cstring>

using namespace std::literals;

namespace diagnose
{

TEST(Findings, NameTheCauseAndWhatUndoesIt)
{
    const Registration user{L"user", 64, true, L"", true, 64, L""};
    const Registration machine{L"machine", 64, false, L"", true, 64, L""};
    const AddInEntry on{L"user", 0, true, 3};
    const AddInEntry off{L"user", 0, true, 2};
    using Case =
        std::tuple<std::vector<Registration>, AddInEntry, std::vector<OfficeEntry>, int, std::size_t, std::wstring>;
    // The registrations, what PowerPoint's lists hold, the server's status; the steps that help, a part of what is
    // found.
    const Case cases[] = {
        {{user}, on, {{L"DoNotDisableAddinList", false, L"key", L"value"}}, 200, 0, L""},
        {{user}, off, {}, 200, 1, L"or PowerPoint was started elevated"},
        {{user, machine}, off, {}, 200, 1, L"switched the add-in off. Run corvane-diagnose --switch-on"},
        {{machine}, {L"machine", 64, false, 2}, {}, 200, 0, L"switched the add-in off. Repair the installation"},
        {{}, off, {}, 200, 1, L"a profile that roams brings the list only"},
        {{}, {L"machine", 64, false, 3}, {}, 200, 0, L"The add-in is not registered. Install the x64 package."},
        {{user}, on, {{L"DisabledItems", true, L"key", L"value"}}, 200, 1, L"DisabledItems. Run corvane-diagnose"},
        {{user}, on, {{L"policy", true, L"", L""}}, 200, 0, L"policy. Correct the policy"},
        {{user}, on, {}, 401, 0, L"in the intranet zone only: add the server to it"},
    };
    for (const auto& [registrations, addIn, office, status, steps, finding] : cases) {
        const ServerAnswer answer{L"s", L"it", status, status == 200};
        const Facts facts{{L"", 64}, registrations, {addIn}, office, {}, answer};
        auto findings = FindingsOf(facts);
        EXPECT_EQ(StepsToSwitchOn(facts).size(), steps) << finding.size();
        EXPECT_EQ(findings.size(), finding.empty() ? 0U : 1U) << finding.size();
        findings.emplace_back();
        EXPECT_NE(findings[0].find(finding), std::wstring::npos) << finding.size();
    }
    EXPECT_EQ(WindowsName(L"Windows 10 Pro", 21999), L"Windows 10 Pro");
    EXPECT_EQ(WindowsName(L"Windows 10 Pro", 22000), L"Windows 11 Pro");
}

TEST(Findings, OnlyEntriesOfTheAddInAreItsOwn)
{
    const auto data = [](std::u16string_view text) { return std::as_bytes(std::span{text}); };
    EXPECT_TRUE(NamesAddIn(L"1a2b", data(u"\1\0X\0,\0c:\\x\\CORVANEmsofficepowerpoint.dll\0Friendly\0"sv)));
    EXPECT_TRUE(NamesAddIn(L"corvanemsofficepowerpoint.connect", {}));
    EXPECT_FALSE(NamesAddIn(L"1a2b", data(u"\1\0X\0,\0c:\\About CorvaneMSOfficePowerPoint.dll.pptx\0"sv)));
    EXPECT_FALSE(NamesAddIn(L"CorvaneMSOfficePowerPoint.Connected", data(u"c:\\CorvaneMSOfficePowerPoint.dll\\o.dll")));
    EXPECT_FALSE(ManagedEntry(L"p", L"1", true)->blocks);
}

TEST(ProgramBits, ComeFromWithinTheFile)
{
    std::string file = "MZ" + std::string(0x40, '\0') + "PE\0\0\x64\x86"s; // the machine ends it
    for (const std::uint32_t place : {0x42U, 0x43U, 0x48U, 0x7FFFFFFFU, 0xFFFFFFE8U, 0xFFFFFFFFU}) {
        std::memcpy(&file[0x3C], &place, sizeof place);
        EXPECT_EQ(ProgramBits(std::as_bytes(std::span{file})), place == 0x42U ? 64 : 0) << place;
    }
    EXPECT_EQ(ProgramBits(std::as_bytes(std::span{file}.first(0x3E))), 0);
}

} // namespace diagnose
