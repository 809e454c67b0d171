#include "shell/CommandLine.h"

#include <array>
#include <csignal>
#include <cstdlib>
#include <gtest/gtest.h>
#include <httplib.h>
#include <sys/wait.h>

namespace server
{

namespace
{

Options Parse(std::vector<const char*> arguments) { return ParseCommandLine(arguments); }

// The program, started with its output in a pipe.
class Program
{
public:
    explicit Program(std::vector<const char*> arguments)
    {
        std::array<int, 2> ends{};
        EXPECT_EQ(::pipe(ends.data()), 0);
        m_process = ::fork();
        if (m_process == 0) {
            ::dup2(ends[1], STDOUT_FILENO);
            ::dup2(ends[1], STDERR_FILENO);
            arguments.insert(arguments.begin(), CORVANE_SERVER);
            arguments.push_back(nullptr);
            ::execv(CORVANE_SERVER, const_cast<char* const*>(arguments.data()));
            std::_Exit(127);
        }
        ::close(ends[1]);
        m_output = ::fdopen(ends[0], "r");
    }
    ~Program() { std::fclose(m_output); }

    std::string ReadLine()
    {
        std::array<char, 512> line{};
        return std::fgets(line.data(), line.size(), m_output) ? std::string{line.data()} : std::string{};
    }
    void Signal(int number) const { ::kill(m_process, number); }
    int ExitStatus() const
    {
        int status = 0;
        ::waitpid(m_process, &status, 0);
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

private:
    pid_t m_process = 0;
    FILE* m_output = nullptr;
};

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

TEST(Program, ServesUntilItIsAskedToEnd)
{
    for (const int signal : {SIGTERM, SIGINT}) {
        Program program{{}};
        const auto line = program.ReadLine();
        const std::string start = "listening on http://127.0.0.1:";
        ASSERT_TRUE(line.starts_with(start)) << line;
        httplib::Client client{"127.0.0.1", std::stoi(line.substr(start.size()))};
        const auto answer = client.Get("/WebServices/offi.asp?Op=GetUserID&P1=v6");
        ASSERT_TRUE(answer);
        EXPECT_EQ(answer->body, "7");
        program.Signal(signal);
        EXPECT_EQ(program.ExitStatus(), 0);
    }
}

TEST(Program, EndsWithStatusTwoForBadArguments)
{
    for (const auto& [arguments, message] : std::vector<std::pair<std::vector<const char*>, std::string>>{
             {{"--user", "Bob"}, "corvane-server: There is no user 'Bob'. Users: Dana Reyes"},
             {{"--port", "many"}, "corvane-server: --port takes a number"}})
    {
        Program program{arguments};
        EXPECT_TRUE(program.ReadLine().starts_with(message));
        EXPECT_EQ(program.ExitStatus(), 2);
    }
}

} // namespace server
