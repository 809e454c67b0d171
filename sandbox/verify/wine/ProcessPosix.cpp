#include "machine/Process.h"

#include "machine/Files.h"

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <stdexcept>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

namespace verify
{
namespace
{

std::atomic<bool> g_stopping = false;

class Descriptor
{
public:
    explicit Descriptor(int number = -1) noexcept : m_number{number} {}
    Descriptor(Descriptor&& other) noexcept : m_number{std::exchange(other.m_number, -1)} {}
    Descriptor& operator=(Descriptor other) noexcept
    {
        std::swap(m_number, other.m_number);
        return *this;
    }
    ~Descriptor()
    {
        if (m_number >= 0) ::close(m_number);
    }
    [[nodiscard]] int Get() const noexcept { return m_number; }

private:
    int m_number;
};

// What a new program's descriptors and group are.
class Launch
{
public:
    Launch()
    {
        ::posix_spawn_file_actions_init(&m_files);
        ::posix_spawnattr_init(&m_attributes);
        ::posix_spawnattr_setflags(&m_attributes, POSIX_SPAWN_SETSID);
        ::posix_spawn_file_actions_addopen(&m_files, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    }
    Launch(const Launch&) = delete;
    Launch& operator=(const Launch&) = delete;
    ~Launch()
    {
        ::posix_spawn_file_actions_destroy(&m_files);
        ::posix_spawnattr_destroy(&m_attributes);
    }

    void Write(int descriptor, const std::string& file)
    {
        ::posix_spawn_file_actions_addopen(&m_files, descriptor, file.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0666);
    }
    void Give(int descriptor, int as) { ::posix_spawn_file_actions_adddup2(&m_files, descriptor, as); }

    // The new process; throws std::runtime_error.
    [[nodiscard]] pid_t Start(const Command& command)
    {
        auto environment = EnvironmentWith(command.settings);
        auto words = command.words;
        pid_t process = -1;
        const int failure = ::posix_spawnp(&process, words.front().c_str(), &m_files, &m_attributes,
                                           Pointers(words).data(), Pointers(environment).data());
        if (failure != 0) throw std::runtime_error{command.words.front() + " cannot be started"};
        return process;
    }

private:
    static std::vector<char*> Pointers(std::vector<std::string>& texts)
    {
        std::vector<char*> pointers;
        pointers.reserve(texts.size() + 1);
        for (auto& text : texts)
            pointers.push_back(text.data());
        pointers.push_back(nullptr);
        return pointers;
    }

    static std::vector<std::string> EnvironmentWith(const std::map<std::string, std::string>& settings)
    {
        std::vector<std::string> all;
        for (char** one = environ; *one != nullptr; ++one) {
            const std::string text = *one;
            if (!settings.contains(text.substr(0, text.find('=')))) all.push_back(text);
        }
        for (const auto& [name, value] : settings)
            all.emplace_back(name).append("=").append(value);
        return all;
    }

    posix_spawn_file_actions_t m_files{};
    posix_spawnattr_t m_attributes{};
};

int StatusOf(int waited) { return WIFEXITED(waited) ? WEXITSTATUS(waited) : 128 + WTERMSIG(waited); }

} // namespace

struct Process::State
{
    pid_t id = -1;
    Descriptor handle;
    Descriptor answer;
    std::optional<int> status;
};

Process::Process(const Command& command) : m_state{std::make_unique<State>()}
{
    Launch launch;
    std::array<int, 2> ends{-1, -1};
    const std::string output = command.output.empty() ? "/dev/null" : command.output.string();
    launch.Write(STDERR_FILENO, output);
    Descriptor writing;
    if (command.answers) {
        if (::pipe2(ends.data(), O_CLOEXEC) != 0) throw std::runtime_error{"there is no pipe left"};
        m_state->answer = Descriptor{ends[0]};
        writing = Descriptor{ends[1]};
        launch.Give(writing.Get(), STDOUT_FILENO);
    } else {
        launch.Give(STDERR_FILENO, STDOUT_FILENO);
    }
    m_state->id = launch.Start(command);
    m_state->handle = Descriptor{static_cast<int>(::syscall(SYS_pidfd_open, m_state->id, 0))};
}

Process::Process(Process&& other) noexcept = default;

Process::~Process()
{
    if (m_state) End();
}

std::string Process::FirstLine()
{
    std::string line;
    char letter = '\0';
    while (::read(m_state->answer.Get(), &letter, 1) == 1 && letter != '\n')
        line += letter;
    return line;
}

std::optional<int> Process::Wait(std::chrono::milliseconds limit)
{
    using Clock = std::chrono::steady_clock;
    const auto end = Clock::now() + limit;
    while (!m_state->status) {
        int waited = 0;
        if (::waitpid(m_state->id, &waited, WNOHANG) == m_state->id) {
            m_state->status = StatusOf(waited);
            break;
        }
        const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(end - Clock::now()).count();
        if (left <= 0) break;
        pollfd ended{m_state->handle.Get(), POLLIN, 0};
        ::poll(&ended, 1, static_cast<int>(left));
    }
    return m_state->status;
}

void Process::AskToEnd() noexcept
{
    if (!m_state->status) ::kill(m_state->id, SIGTERM);
}

void Process::End() noexcept
{
    if (m_state->status) return;
    ::kill(-m_state->id, SIGKILL);
    int waited = 0;
    while (::waitpid(m_state->id, &waited, 0) < 0 && errno == EINTR) {
    }
    m_state->status = StatusOf(waited);
}

long Process::Id() const { return m_state->id; }

void WatchForStop()
{
    for (const int signal : {SIGINT, SIGTERM, SIGHUP})
        std::signal(signal, [](int) { g_stopping = true; });
}

bool Stopping() noexcept { return g_stopping; }

void TellStopped() noexcept {}

} // namespace verify
