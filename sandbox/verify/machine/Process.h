// Programs that are started, waited for and ended.
#pragma once

#include <chrono>
#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace verify
{

struct Command
{
    std::vector<std::string> words;                // the program first
    std::map<std::string, std::string> settings{}; // added to the environment
    std::filesystem::path output{};                // receives all that it prints; empty: it goes nowhere
    bool answers = false;                          // its first line is read by Process::FirstLine instead
    bool stays = false;                            // it is not ended with the Process; on Windows only
};

// A program and all that it starts, which is ended with this.
class Process
{
public:
    explicit Process(const Command& command); // throws std::runtime_error where it cannot be started
    Process(Process&& other) noexcept;
    Process& operator=(Process&& other) = delete;
    ~Process();

    // What it prints up to the end of the first line; empty where it ends before.
    [[nodiscard]] std::string FirstLine();

    // Its exit status; nothing while it runs at the end of this time.
    [[nodiscard]] std::optional<int> Wait(std::chrono::milliseconds limit);

    void AskToEnd() noexcept; // in order
    void End() noexcept;      // at once, with what it has started

    // What finds it among the processes of the system.
    [[nodiscard]] long Id() const;

private:
    struct State;
    std::unique_ptr<State> m_state;
};

// From here on Ctrl+C, and what else asks a program to end, only makes Stopping true.
void WatchForStop();
[[nodiscard]] bool Stopping() noexcept;

// Where the system gives only seconds for the end: that it may come.
void TellStopped() noexcept;

} // namespace verify
