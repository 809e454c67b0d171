// Plays on the PC of a user who is signed in, with add-in, host and server from the folder of this program.
#pragma once

#include "machine/Machine.h"
#include "windows/RegistryNote.h"

#include <string>

namespace verify
{

// Registers the add-in for the user and takes that back, with all that hosts and scenarios change in the registry.
// Writes nothing outside of HKEY_CURRENT_USER and of "work" in its folder.
class WindowsMachine final : public Machine
{
public:
    // Puts back first what a program that was killed has left. Throws what keeps it from a sound start.
    explicit WindowsMachine(std::filesystem::path home);
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

    // Puts back what was left in the registry by a program that was killed, and removes the folder "work".
    static void CleanUp(const std::filesystem::path& home);

private:
    void Register();
    void WriteSettings(const std::vector<std::string>& options) const;
    [[nodiscard]] std::map<std::string, std::string> Environment() const;

    std::filesystem::path m_home;
    std::filesystem::path m_work;
    RegistryNote m_note;
};

} // namespace verify
