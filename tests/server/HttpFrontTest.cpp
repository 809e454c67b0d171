#include "shell/HttpFront.h"

#include "shell/DataFolder.h"

#include <arpa/inet.h>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <future>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <sys/syscall.h>

namespace server
{

namespace
{

// A real connection, because the bytes on it are what is tested.
int Connect(int port)
{
    const int client = ::socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(static_cast<std::uint16_t>(port));
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    EXPECT_EQ(::connect(client, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
    return client;
}

std::string Talk(int client, const std::string& bytes)
{
    EXPECT_EQ(::send(client, bytes.data(), bytes.size(), 0), static_cast<ssize_t>(bytes.size()));
    std::string answer;
    errno = 0;
    char buffer[4096];
    for (ssize_t count = 0; (count = ::recv(client, buffer, sizeof buffer, 0)) > 0;)
        answer.append(buffer, static_cast<std::size_t>(count));
    if (errno == ECONNRESET) answer += "<reset>";
    ::close(client);
    return answer;
}

std::string Exchange(int port, const std::string& bytes) { return Talk(Connect(port), bytes); }

class Front : public testing::Test
{
protected:
    void SetUp() override
    {
        m_port = m_front.Bind(0);
        m_run = std::async(std::launch::async, [this] { m_context.run(); });
    }
    void TearDown() override { m_front.Stop(); }

    void WriteFaults(const std::string& rules) { std::ofstream{m_folder.Path() / "faults"} << rules; }
    std::string Get(const std::string& target)
    {
        return Exchange(m_port, "GET " + target + " HTTP/1.1\r\nHost: h\r\n\r\n");
    }

    std::vector<nlohmann::json> LogLines()
    {
        std::vector<nlohmann::json> lines;
        std::ifstream file{m_folder.Path() / "log"};
        for (std::string line; std::getline(file, line);)
            lines.push_back(nlohmann::json::parse(line));
        return lines;
    }

    DataFolder m_folder{""};
    RequestLog m_log{m_folder.Path() / "log"};
    Faults m_faults{m_folder.Path() / "faults"};
    std::atomic<int> m_handled = 0;
    asio::io_context m_context;
    HttpFront m_front{m_context,
                      {[this](const Request& request) {
                           ++m_handled;
                           return Answer{.status = 200, .contentType = "text/plain", .body = "echo:" + request.body};
                       },
                       m_log, m_faults}};
    int m_port = 0;
    std::future<void> m_run;
};

} // namespace

TEST_F(Front, AnswersAndLogsExactlyWhatArrived)
{
    const std::string body("P=\xE9\0\xFF"
                           "abcd",
                           9);
    const auto answer =
        Exchange(m_port, "POST /a%2Fb?x=\xE9+\"q\" HTTP/1.1\r\nlastCached: 1/2/2025 3:04 PM\r\nContent-Type: t\r\n"
                         "X-Odd:   two  words \r\nx-odd: again\xFC\r\nContent-Length: 9\r\n\r\n" +
                             body);
    EXPECT_TRUE(answer.starts_with("HTTP/1.1 200 OK\r\n"));
    EXPECT_TRUE(answer.ends_with("\r\n\r\necho:" + body));

    const auto line = LogLines().at(0);
    EXPECT_EQ(line["method"], "POST");
    EXPECT_EQ(line["target"], "/a%2Fb?x=\xC3\xA9+\"q\"");
    EXPECT_EQ(line["headers"], nlohmann::json::parse(R"([["lastCached", "1/2/2025 3:04 PM"], ["Content-Type", "t"],
        ["X-Odd", "two  words"], ["x-odd", "againü"], ["Content-Length", "9"]])"));
    EXPECT_EQ(line["body"], "UD3pAP9hYmNk");
    EXPECT_EQ(line["status"], 200);
}

TEST_F(Front, AnswersAsARuleSaysWithoutCarryingOutTheRequest)
{
    WriteFaults(R"([{"match": "/before", "drop": "before"}, {"match": "/body", "drop": "body", "body": "01234567"},
                    {"match": "/headers", "drop": "headers", "body": ""}])");
    EXPECT_EQ(Get("/before"), "<reset>");
    EXPECT_EQ(LogLines().at(0)["status"], 0);
    EXPECT_TRUE(Get("/body").ends_with("\r\n\r\n0123<reset>"));
    EXPECT_EQ(Get("/headers"), "HTTP/1.1 200 OK\r\nContent-Type: text/plain; charset=utf-8\r\n<reset>");
    EXPECT_EQ(m_handled, 0);
    WriteFaults("[{not json");
    EXPECT_TRUE(Get("/x").ends_with("echo:")) << "a broken faults file does not stop the server";
}

TEST_F(Front, RefusesWhatIsNoRequest)
{
    EXPECT_TRUE(Exchange(m_port, "nonsense\r\n\r\n").starts_with("HTTP/1.1 400 "));
    EXPECT_TRUE(Exchange(m_port, "POST / HTTP/1.1\r\nTransfer-Encoding: chunked\r\n\r\n0\r\n\r\n")
                    .starts_with("HTTP/1.1 411 "));
    EXPECT_EQ(m_handled, 0);
}

TEST_F(Front, StopsAtOnceDespiteADelayedAnswer)
{
    WriteFaults(R"([{"delayMs": 600000}])");
    auto pending = std::async(std::launch::async, [&] { return Get("/slow"); });
    while (LogLines().empty())
        std::this_thread::yield();
    m_front.Stop();
    EXPECT_TRUE(pending.get().starts_with("HTTP/1.1 200 ")) << "what was carried out is still answered";
    m_run.get();
}

TEST_F(Front, HoldsAnAnswerBackUntilTheFaultsFileChanges)
{
    WriteFaults(R"([{"hold": true, "body": "held"}])");
    auto pending = std::async(std::launch::async, [&] { return Get("/x"); });
    while (LogLines().empty())
        std::this_thread::yield();
    EXPECT_EQ(pending.wait_for(std::chrono::milliseconds{200}), std::future_status::timeout);
    WriteFaults("[]");
    EXPECT_TRUE(pending.get().ends_with("held"));
}

TEST_F(Front, GoesOnReadingAfterASignal)
{
    std::signal(SIGUSR1, [](int) {});
    const int client = Connect(m_port);
    for (int round = 0; round < 20; ++round) {
        for (const auto& thread : std::filesystem::directory_iterator{"/proc/self/task"})
            ::syscall(SYS_tgkill, ::getpid(), std::stoi(thread.path().filename()), SIGUSR1);
        std::this_thread::sleep_for(std::chrono::milliseconds{5});
    }
    EXPECT_TRUE(Talk(client, "GET / HTTP/1.1\r\n\r\n").ends_with("echo:"));
}

TEST_F(Front, DoesNotShareItsPort)
{
    HttpFront other{m_context, {[](const Request&) { return Answer{}; }, m_log, m_faults}};
    EXPECT_THROW((void)other.Bind(m_port), std::runtime_error);
}

} // namespace server
