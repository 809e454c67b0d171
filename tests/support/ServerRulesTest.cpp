#include "support/ServerRules.h"

#include <gtest/gtest.h>

#include <ranges>

namespace corvane
{

TEST(ServerRules, TakeOfADocumentOnlyThePlainAddressOfAServer)
{
    constexpr std::wstring_view kGood =
        L"http://h|HTTPS://Host.example:8443/pm/|http://b\u00FCro|http://[::1]:1/a@b|http://h:65535/%3F";
    constexpr std::wstring_view kEvil =
        L"|h|file:///etc|\\\\h\\s|ftp://h|http:/h|http://|http:///h|http://u@h|http://u:p@h|http://h?x=|http://h/a?x=|"
        L"http://h/#|http://h\\@i|http://h/a\\b|http://h:|http://h:0|http://h:65536|http://h:8x|http://h:1:2|http://"
        L"::1|"
        L"http://[h]|http://[::1|http://[::1]x| http://h|http://h/ |http://h/\t|http://h/\u202Egpj|http://h/\u3000|"
        L"http://h%2Ei|http://h\uFF0Fi|http://h\u3002i";
    for (const auto& part : std::views::split(kGood, L'|'))
        EXPECT_NE(DocumentServer({part.begin(), part.end()}), L"") << testing::PrintToString(part);
    for (const auto& part : std::views::split(kEvil, L'|'))
        EXPECT_EQ(DocumentServer({part.begin(), part.end()}), L"") << testing::PrintToString(part);
}

TEST(ServerRules, TakeUserNameAndPasswordOutOfAddresses)
{
    EXPECT_EQ(WithoutCredentials(L"http://u:p@q@h/a@b"), L"http://h/a@b");
    for (const wchar_t* address : {L"http://h?u@i", L"http://h\\@i", L"http://h#@i", L"u@h"})
        EXPECT_EQ(WithoutCredentials(address), address);
    EXPECT_EQ(WithoutCredentialsInText(L"http://u:p@h/x, //v@i.\r\nAsk a@b"), L"http://***@h/x, //***@i.\r\nAsk a@b");
}

TEST(ServerRules, DecideAboutEachAddress)
{
    using enum ServerRefusal;
    const std::vector<std::wstring> renames{L"=http://x", L"http://b", L"b=ftp:", L"http://b/ = HTTPS://C",
                                            L"c=http://d"};
    const std::tuple<const wchar_t*, ServerPolicy, ServerRefusal, const wchar_t*> kCases[] = {
        {L"ftp://u:p@A/?", {}, None, L"ftp://u:p@A/?"},
        {L"", {{}, {}, true, true}, None, L""},
        {L"http://a", {{}, {}, true}, NotOffered, L"http://a"},
        {L"http://", {{L" "}, {}, true}, NotOffered, L"http://"},
        {L"http://u:p@a/B", {{L" A/b/ "}, {}, true}, None, L"http://u:p@a/B"},
        {L"http://a:80", {{L"http://a"}, {}, true}, NotOffered, L"http://a:80"},
        {L"http://i\\@a", {{L"http://a"}, {}, true}, NotOffered, L"http://i\\@a"},
        {L"http://i", {{L"http://a"}}, None, L"http://i"},
        {L"http://a", {{}, {}, false, true}, NotEncrypted, L"http://a"},
        {L"HTTPS://a", {{}, {}, false, true}, None, L"HTTPS://a"},
        {L"http://u:p@B", {{}, renames, false, true}, None, L"https://c"},
        {L"http://b", {{L"http://b"}, renames, true}, NotOffered, L"https://c"},
    };
    for (const auto& [given, policy, refusal, address] : kCases) {
        const ServerDecision decision = DecideServer(given, policy);
        EXPECT_EQ(decision.address, address);
        EXPECT_EQ(decision.refusal, refusal) << testing::PrintToString(given);
    }
    EXPECT_EQ(RememberedServers({L"http://u@a", L"", L"b", L"http://a", L"http://c", L"x", L"x"}, {L"b=http://c"}),
              (std::vector<std::wstring>{L"http://a", L"", L"http://c", L"", L"", L"x", L"x"}));
}

} // namespace corvane
