#include "windows/InPowerPoint.h"

#include "judge/LoadTimes.h"
#include "judge/PageText.h"
#include "judge/Questions.h"
#include "machine/Files.h"
#include "machine/Reports.h"
#include "machine/Suits.h"
#include "windows/PowerPoint.h"
#include "windows/System.h"
#include "windows/WindowsMachine.h"

#include <algorithm>

namespace verify
{
namespace
{

namespace fs = std::filesystem;

// Starts the program for each scenario and keeps what tells how long the add-in took to load.
class InPowerPoint final : public WindowsMachine
{
public:
    InPowerPoint(const fs::path& home, HostProgram program, bool addInIsInstalled)
        : WindowsMachine{home, {program.file, addInIsInstalled}}, m_program{std::move(program)}, m_addInIsInstalled{
                                                                                                     addInIsInstalled}
    {}

    [[nodiscard]] std::string Refuses(const Scenario& scenario) const override
    {
        if (!m_left.empty()) return "the program was left running: " + m_left;
        auto why = WhyNotInForeignHost(scenario, m_addInIsInstalled);
        if (why.empty() && !MailClientOf(scenario).empty() && !m_showsUsersClasses)
            why = "this system does not show programs the mail client that a user has chosen";
        return why.empty() ? WindowsMachine::Refuses(scenario) : why;
    }

    [[nodiscard]] Played Run(const Play& play) override
    {
        RequireNotRunning(m_program);
        auto played = WindowsMachine::Run(play);
        m_left = played.left;
        m_printed.push_back(played.printed);
        std::ranges::transform(Traces(), std::back_inserter(m_traces), ReadOrEmpty);
        return played;
    }

    [[nodiscard]] const std::string& WhyLeft() const { return m_left; }
    [[nodiscard]] std::string LoadTimes() const { return LoadTimesText(m_printed, m_traces); }

private:
    HostProgram m_program;
    bool m_addInIsInstalled;
    bool m_showsUsersClasses = ShowsUsersClasses();
    std::string m_left;
    std::vector<std::string> m_printed;
    std::vector<std::string> m_traces;
};

std::string HostText(const HostProgram& program)
{
    const auto version = FileVersionOf(program.file);
    return Utf8Of(program.file.filename()) + (version.empty() ? "" : " " + version) + ", " +
           std::to_string(program.bits) + "-bit" + (program.isPowerPoint ? "" : ", in PowerPoint's place");
}

std::string AddInText(const fs::path& installed)
{
    if (installed.empty()) return CORVANE_VERSION ", from this folder";
    return FileVersionOf(installed) + ", as it is installed: " + Utf8Of(installed);
}

} // namespace

Report PlayInPowerPoint(const fs::path& home, const fs::path& named, RunPlan plan,
                        const std::vector<Scenario>& scenarios)
{
    plan.byCompanion = true;
    plan.foreign = true;
    const auto program = FindHostProgram(named);
    RequireNotRunning(program);
    WindowsMachine::CleanUp(home); // lest what a run has left be taken for an installation
    const auto installed = InstalledAddIn();
    auto machine = std::make_unique<InPowerPoint>(home, program, !installed.empty());
    const auto& host = *machine;
    Machines machines;
    machines.push_back(std::move(machine));
    auto results = PlayAll(machines, scenarios, plan);
    auto questions = Answered(QuestionsIn(QuestionsText()), results, program.isPowerPoint && !IsWine());
    Report report{.facts = {{"Add-in", AddInText(installed)},
                            {"Host", HostText(program)},
                            {"System", SystemName()},
                            {"MSXML", MsxmlVersions()},
                            {"The add-in's load time", host.LoadTimes()},
                            {"Played", TimeHere()}},
                  .results = std::move(results),
                  .questions = std::move(questions)};
    if (!host.WhyLeft().empty())
        report.facts.emplace_back("Left running", Utf8Of(program.file.filename()) + ", because " + host.WhyLeft() +
                                                      "; please close it yourself.");
    return report;
}

} // namespace verify
