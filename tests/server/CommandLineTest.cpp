#include "shell/CommandLine.h"

#include <gtest/gtest.h>

namespace server
{

TEST(CommandLine, TakesEveryOptionAndRefusesTheRest)
{
    const auto options = ParseCommandLine(
        {"--port", "8080", "--data", "Dätä", "--user", "Noor Haddad", "--log", "l.json", "--faults", "f.json"});
    EXPECT_EQ(options.port, 8080);
    EXPECT_EQ(options.data, std::filesystem::path{u8"Dätä"});
    EXPECT_EQ(options.user, "Noor Haddad");
    EXPECT_EQ(options.log, "l.json");
    EXPECT_EQ(options.faults, "f.json");
    EXPECT_TRUE(ParseCommandLine({"--help"}).help);
    for (const auto& wrong : std::vector<std::vector<std::string>>{
             {"--port", "80x"}, {"--port", "65536"}, {"--port"}, {"--bogus", "1"}, {"extra"}, {"--user", ""}})
        EXPECT_THROW((void)ParseCommandLine(wrong), UsageError) << wrong.front();
}

} // namespace server
