// Plays on the PC of a user who is signed in, with add-in, host and server from the folder of this program.
#pragma once

#include "machine/Machine.h"
#include "windows/RegistryNote.h"

#include <string>

namespace verify
{

class Process;

// In what the scenarios are played.
struct Subject
{
    std::filesystem::path program{}; // none: the stand-in host of the runner's folder
    bool hasAddIn = false;           // the add-in is installed for it, and taken as it is
};

// Registers the add-in for the user and takes that back, with all that hosts and scenarios change in the registry.
// Writes nothing outside of HKEY_CURRENT_USER and of "work" in its folder.
class WindowsMachine : public Machine
{
public:
    // Puts back first what a program that was killed has left. Throws what keeps it from a sound start.
    explicit WindowsMachine(std::filesystem::path home, Subject subject = {});
    ~WindowsMachine() override;
    WindowsMachine(const WindowsMachine&) = delete;
    WindowsMachine& operator=(const WindowsMachine&) = delete;

    [[nodiscard]] std::string Refuses(const Scenario& scenario) const override;
    [[nodiscard]] std::string HostPath(const std::filesystem::path& path) const override;
    void Reset(const std::filesystem::path& folder, const std::vector<std::string>& values) override;
    [[nodiscard]] Played Run(const Play& play) override;
    [[nodiscard]] std::vector<std::filesystem::path> TemporaryFiles() const override;
    [[nodiscard]] std::vector<std::filesystem::path> Traces() const override;
    [[nodiscard]] std::optional<std::string> RibbonFaults(const std::filesystem::path&,
                                                          const std::string&) const override
    {
        return std::nullopt;
    }

    // The host for a person, until it is closed.
    void RunForPerson();

    // Whether programs find a class of the user's among all classes, which not every system merges.
    [[nodiscard]] bool ShowsUsersClasses() const;

    // Puts back what was left in the registry by a program that was killed, and removes the folder "work".
    static void CleanUp(const std::filesystem::path& home);

private:
    void Register();
    static std::string LeaveOrAwait(Process& host, const Play& play, std::optional<int>& status);
    void WriteSettings(const std::vector<std::string>& options) const;
    [[nodiscard]] std::map<std::string, std::string> Environment() const;

    std::filesystem::path m_home;
    std::filesystem::path m_work;
    Subject m_subject;
    RegistryNote m_note;
    bool m_isLeft = false; // what was started last runs on
};

} // namespace verify
