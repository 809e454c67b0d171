#include "shared/SaveReply.h"
#include "shared/HostTraits.h"
#include "shared/HostVersion.h"

#include <gtest/gtest.h>
#include <tuple>

namespace corvane
{

TEST(SaveReply, KnowsItsPrefixesOnlyAtTheStartAndWithATextBehindThem)
{
    constexpr std::tuple<const wchar_t*, ReplyKind, const wchar_t*> kCases[] = {
        {L"CancelMessage:Locked by Dana.", ReplyKind::Cancelled, L"Locked by Dana."},
        {L"CancelMessage: ", ReplyKind::Cancelled, L" "},
        {L"CancelMessage:BrokenLinks:x", ReplyKind::Cancelled, L"BrokenLinks:x"},
        {L"BrokenLinks:a.xls\r\nb.xls", ReplyKind::BrokenLinks, L"a.xls\r\nb.xls"},
        {L"CancelMessage:", ReplyKind::Nothing, L""},
        {L"BrokenLinks:", ReplyKind::Nothing, L""},
        {L"cancelmessage:x", ReplyKind::Nothing, L""},
        {L"BROKENLINKS:x", ReplyKind::Nothing, L""},
        {L" CancelMessage:x", ReplyKind::Nothing, L""},
        {L"saved, BrokenLinks:x", ReplyKind::Nothing, L""},
        {L"4711", ReplyKind::Nothing, L""},
        {L"", ReplyKind::Nothing, L""},
    };
    for (const auto& [answer, kind, text] : kCases) {
        SCOPED_TRACE(testing::PrintToString(answer));
        EXPECT_EQ(ReadSaveReply(answer).kind, kind);
        EXPECT_EQ(ReadSaveReply(answer).text, text);
    }
}

struct EventsCase
{
    const char* name;
    const wchar_t* doEvents; // null without a switch in the document
    const wchar_t* host;
    const wchar_t* version;
    bool expected;
};

TEST(ClientEvents, FollowTheDocumentsSwitchAndElseRunEverywhereButInWord2002)
{
    constexpr EventsCase kCases[] = {
        {"Word2002WithoutPoint", nullptr, kWordName, L"10", false},
        {"Word2003", nullptr, kWordName, L"11.0", true},
        {"WordOfAHundred", nullptr, kWordName, L"100.0", true},
        {"PowerPoint2002", nullptr, kPowerPointName, L"10.0", true},
        {"SwitchedOnByNumber", L"-1", kWordName, L"10.0", true},
        {"EmptySwitch", L"", kPowerPointName, L"16.0", false},
    };
    for (const auto& item : kCases) {
        ClientEventFacts facts{std::nullopt, FindHost(item.host), MajorVersion(item.version)};
        if (item.doEvents != nullptr) facts.doEvents = item.doEvents;
        EXPECT_EQ(WantsClientEvents(facts), item.expected) << item.name;
    }
}

TEST(ClientEvents, AreOnAtTheServerOnlyByTheExactText)
{
    EXPECT_TRUE(IsClientEventsSettingOn(L"1"));
    for (const auto* value : {L"", L"0", L"True", L" 1", L"1 ", L"01", L"-1"})
        EXPECT_FALSE(IsClientEventsSettingOn(value)) << testing::PrintToString(value);
}

TEST(HostVersion, DecidesBetweenCommandBarsOfficeMenuAndBackstage)
{
    constexpr std::tuple<const wchar_t*, int, bool, bool> kCases[] = {
        {L"11.0", 11, false, false},    {L"12.0", 12, true, false}, {L"14.0", 14, true, true},
        {L"15.0.4420", 15, true, true}, {L"16.0", 16, true, true},  {L" \t16", 16, true, true},
        {L"", 0, false, false},         {L"beta", 0, false, false}, {L"9.0", 9, false, false},
    };
    for (const auto& [version, expected, ribbon, backstage] : kCases) {
        SCOPED_TRACE(testing::PrintToString(version));
        const int major = MajorVersion(version);
        EXPECT_EQ(major, expected);
        EXPECT_EQ(HasRibbon(major), ribbon);
        EXPECT_EQ(HasBackstage(major), backstage);
    }
    EXPECT_TRUE(HasRibbon(MajorVersion(L"99999999999999999999"))) << "too long a number stays a number";
}

} // namespace corvane
