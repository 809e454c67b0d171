#include "shell/CommandLine.h"

#include <cstdio>
#include <gtest/gtest.h>
#include <sys/wait.h>

namespace server
{

namespace
{

Options Parse(std::vector<const char*> arguments) { return ParseCommandLine(arguments); }

} // namespace

TEST(CommandLine, TakesEveryOptionAndRefusesTheRest)
{
    const auto options =
        Parse({"--port", "8080", "--data", "d", "--user", "Noor Haddad", "--log", "l.json", "--faults", "f.json"});
    EXPECT_EQ(options.port, 8080);
    EXPECT_EQ(options.data, "d");
    EXPECT_EQ(options.user, "Noor Haddad");
    EXPECT_EQ(options.log, "l.json");
    EXPECT_EQ(options.faults, "f.json");
    EXPECT_TRUE(Parse({"--help"}).help);
    for (const auto& wrong : std::vector<std::vector<const char*>>{
             {"--port", "80x"}, {"--port", "65536"}, {"--port"}, {"--bogus", "1"}, {"extra"}, {"--user", ""}})
        EXPECT_THROW((void)Parse(wrong), UsageError) << wrong.front();
}

TEST(CommandLine, EndsTheProgramWithStatusTwoWhereItIsRefused)
{
    FILE* program = ::popen(CORVANE_SERVER " --user Bob 2>&1", "r");
    char told[512] = "";
    (void)std::fread(told, 1, sizeof told - 1, program);
    EXPECT_TRUE(std::string{told}.starts_with("corvane-server: There is no user 'Bob'. Users: Dana Reyes")) << told;
    EXPECT_EQ(WEXITSTATUS(::pclose(program)), 2);
}

} // namespace server
