// Plays in a Wine of its own with a display of its own, both kept up, which makes each host start fast.
#pragma once

#include "machine/Machine.h"
#include "machine/Process.h"

#include <memory>
#include <string>

namespace verify
{

class FileLock;

// Holds the Wine build/wine/scenarios-ARCH-NUMBER of a checkout; another run waits for it.
class WineMachine final : public Machine
{
public:
    WineMachine(std::filesystem::path top, std::string arch, int number);
    ~WineMachine() override;
    WineMachine(const WineMachine&) = delete;
    WineMachine& operator=(const WineMachine&) = delete;

    [[nodiscard]] std::string Refuses(const Scenario&) const override { return {}; }
    [[nodiscard]] std::string HostPath(const std::filesystem::path& path) const override;
    void Reset(const std::filesystem::path& folder, const std::vector<std::string>& values) override;
    [[nodiscard]] Played Run(const Play& play) override;
    [[nodiscard]] std::vector<std::filesystem::path> TemporaryFiles() const override;
    [[nodiscard]] std::vector<std::filesystem::path> Traces() const override;
    [[nodiscard]] std::optional<std::string> RibbonFaults(const std::filesystem::path& folder,
                                                          const std::string& edition) const override;

private:
    void Prepare() const;
    void Renew() const;
    void Stop() const;
    int InShell(const std::string& script) const;
    [[nodiscard]] Command Inside(std::vector<std::string> words) const;

    std::filesystem::path m_top;
    std::string m_arch;
    std::filesystem::path m_wine;
    std::filesystem::path m_playing; // is there while a host runs, and after one that did not end itself
    std::unique_ptr<FileLock> m_lock;
    std::unique_ptr<Process> m_screen;
    std::string m_display;
};

// A lock on a file among processes, until it is destroyed.
class FileLock
{
public:
    enum class Kind
    {
        Shared,
        Alone,
    };
    FileLock(const std::filesystem::path& file, Kind kind); // throws std::runtime_error
    ~FileLock();
    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;

private:
    int m_file;
};

} // namespace verify
