#include "support/ServerList.h"

#include <gtest/gtest.h>
#include <tuple>

namespace corvane
{

using Urls = std::vector<std::wstring>;

TEST(ServerList, PutsTheLatestAddressFirst)
{
    const std::tuple<const char*, Urls, const wchar_t*, Urls> kCases[] = {
        {"KnownOneFromTheMiddle", {L"A", L"B", L"C", L"D", L"E"}, L"C", {L"C", L"A", L"B", L"D", L"E"}},
        {"KnownOneFromTheEnd", {L"A", L"B", L"C"}, L"C", {L"C", L"A", L"B"}},
        {"FirstStaysFirst", {L"A", L"B", L"C"}, L"A", {L"A", L"B", L"C"}},
        {"NewOnePushesTheLastOut", {L"A", L"B", L"C", L"D", L"E"}, L"F", {L"F", L"A", L"B", L"C", L"D"}},
        {"OtherLetterCaseIsAnother", {L"http://a", L"", L""}, L"http://A", {L"http://A", L"http://a", L""}},
        {"TrailingSlashIsAnother", {L"http://a", L"", L""}, L"http://a/", {L"http://a/", L"http://a", L""}},
        {"FirstOfTwoEqual", {L"A", L"B", L"C", L"B"}, L"B", {L"B", L"A", L"C", L"B"}},
        {"EmptyIsAnAddressLikeAnother", {L"A", L"", L"B", L""}, L"", {L"", L"A", L"B", L""}},
        {"HolesStay", {L"A", L"", L"B"}, L"B", {L"B", L"A", L""}},
        {"ListOfOne", {L"A"}, L"B", {L"B"}},
        {"ListOfNone", {}, L"B", {}},
    };
    for (const auto& [name, before, url, after] : kCases) {
        Urls urls = before;
        MoveToFront(urls, url);
        EXPECT_EQ(urls, after) << name;
    }
}

TEST(ServerList, PutsTheAdministratorsAddressesInFront)
{
    const std::tuple<const char*, Urls, Urls, Urls> kCases[] = {
        {"NoPresetChangesNothing", {L"A", L"", L"A"}, {}, {L"A", L"", L"A"}},
        {"BlankPresetIsNone", {L"A", L""}, {L"  "}, {L"A", L""}},
        {"NewUserGetsThePreset", {L"", L"", L""}, {L"http://a", L"http://b"}, {L"http://a", L"http://b", L""}},
        {"LatestOfThePresetFirst",
         {L"x", L"http://b", L""},
         {L"http://a", L"http://b"},
         {L"http://b", L"http://a", L"x"}},
        {"HolesAreNoAddresses", {L"", L"x"}, {L"http://a"}, {L"http://a", L"x"}},
        {"UsersLastFallsOff", {L"x", L"y"}, {L"http://a"}, {L"http://a", L"x"}},
        {"GrowsForThePresetOnly", {L"x"}, {L"http://a", L"http://b"}, {L"http://a", L"http://b"}},
        {"BroughtIntoItsForm", {L"http://a", L""}, {L" A ", L"HTTP://A"}, {L"http://a", L""}},
    };
    for (const auto& [name, user, preset, expected] : kCases)
        EXPECT_EQ(WithPreset(user, preset), expected) << name;
}

TEST(ServerList, TakesItsLengthFromThePolicyThenTheUser)
{
    EXPECT_EQ(ServerCount({}, {}), 5U);
    EXPECT_EQ(ServerCount({}, 3), 3U);
    EXPECT_EQ(ServerCount(2, 3), 2U);
    EXPECT_EQ(ServerCount(-1, 3), 0U);
    EXPECT_EQ(ServerCount({}, INT32_MAX), 1000U);
}

TEST(ServerList, BringsAnAddressIntoItsForm)
{
    constexpr const wchar_t* kCases[][2] = {
        {L"  Host.Example/Path ", L"http://host.example/path"},
        {L"HTTPS://Host", L"https://host"},
        {L"http://Host:8080/", L"http://host:8080/"},
        {L"//Host", L"http://host"},
        {L"/host", L"http:///host"},
        {L"ftp://host", L"http://ftp://host"},
        {L"https:host", L"http://https:host"},
        {L"httpserver", L"http://httpserver"},
        {L"", L"http://"},
    };
    for (const auto& [given, expected] : kCases)
        EXPECT_EQ(VerifyServerURL(given), expected) << testing::PrintToString(given);
}

} // namespace corvane
