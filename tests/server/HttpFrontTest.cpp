#include "shell/HttpFront.h"

#include "shell/DataFolder.h"

#include <asio/read.hpp>
#include <asio/write.hpp>
#include <fstream>
#include <future>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#ifndef _WIN32
#include <csignal>
#include <filesystem>
#include <sys/syscall.h>
#endif

namespace server
{

namespace
{

// How a connection that was reset ends. Wine tells of some as of one that was closed.
#ifdef _WIN32
constexpr auto kReset = "";
#else
constexpr auto kReset = "<reset>";
#endif

// A real connection, because the bytes on it are what is tested.
class Client
{
public:
    explicit Client(int port)
    {
        m_socket.connect({asio::ip::address_v4::loopback(), static_cast<asio::ip::port_type>(port)});
    }

    std::string Talk(const std::string& bytes)
    {
        asio::write(m_socket, asio::buffer(bytes));
        std::string answer;
        std::error_code end;
        asio::read(m_socket, asio::dynamic_buffer(answer), end);
        return end == asio::error::connection_reset ? answer + kReset : answer;
    }

private:
    asio::io_context m_context;
    asio::ip::tcp::socket m_socket{m_context};
};

std::string Exchange(int port, const std::string& bytes) { return Client{port}.Talk(bytes); }

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
    EXPECT_EQ(Get("/before"), kReset);
    EXPECT_EQ(LogLines().at(0)["status"], 0);
    EXPECT_TRUE(Get("/body").ends_with(std::string{"\r\n\r\n0123"} + kReset));
    EXPECT_EQ(Get("/headers"), std::string{"HTTP/1.1 200 OK\r\nContent-Type: text/plain; charset=utf-8\r\n"} + kReset);
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

#ifndef _WIN32
TEST_F(Front, GoesOnReadingAfterASignal)
{
    std::signal(SIGUSR1, [](int) {});
    Client client{m_port};
    for (int round = 0; round < 20; ++round) {
        for (const auto& thread : std::filesystem::directory_iterator{"/proc/self/task"})
            ::syscall(SYS_tgkill, ::getpid(), std::stoi(thread.path().filename()), SIGUSR1);
        std::this_thread::sleep_for(std::chrono::milliseconds{5});
    }
    EXPECT_TRUE(client.Talk("GET / HTTP/1.1\r\n\r\n").ends_with("echo:"));
}
#endif

TEST_F(Front, DoesNotShareItsPort)
{
    HttpFront other{m_context, {[](const Request&) { return Answer{}; }, m_log, m_faults}};
    EXPECT_THROW((void)other.Bind(m_port), std::runtime_error);
}

} // namespace server
