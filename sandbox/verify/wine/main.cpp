// corvane-verify on the machine that builds it: the host runs in Wine, six scenarios at a time.
#include "machine/Choosing.h"
#include "machine/Playing.h"
#include "machine/Reports.h"
#include "wine/WineMachine.h"

#include <algorithm>
#include <future>
#include <iostream>

namespace
{

using namespace verify;
namespace fs = std::filesystem;

constexpr std::size_t kDesks = 6; // scenarios played at a time; they mostly wait
constexpr int kBadArguments = 2;
constexpr const char* kUsage =
    "usage: corvane-verify [--arch x64|x86|checked] [--companion] [NAME|FILE|FOLDER]... [SETTING=VALUE]...\n";

struct Options
{
    std::string arch = "x64";
    bool byCompanion = false;
    std::vector<std::string> names;
    std::vector<std::string> settings;
};

Options ReadOptions(const std::vector<std::string>& words)
{
    Options options;
    for (std::size_t at = 0; at < words.size(); ++at) {
        if (words[at] == "--arch" && at + 1 < words.size())
            options.arch = words[++at];
        else if (words[at] == "--companion")
            options.byCompanion = true;
        else if (words[at].starts_with("--"))
            throw std::invalid_argument{"unknown option " + words[at]};
        else
            (words[at].find('=') == std::string::npos ? options.names : options.settings).push_back(words[at]);
    }
    return options;
}

Machines MakeMachines(const fs::path& top, const std::string& arch, std::size_t count)
{
    std::vector<std::future<std::unique_ptr<Machine>>> making;
    for (std::size_t number = 0; number < count; ++number)
        making.push_back(std::async(std::launch::async, [&, number]() -> std::unique_ptr<Machine> {
            return std::make_unique<WineMachine>(top, arch, static_cast<int>(number));
        }));
    Machines machines;
    for (auto& one : making)
        machines.push_back(one.get());
    return machines;
}

// Shares the machine with other tests, or waits for their end and has it alone.
void PlayLocked(const Machines& machines, const std::vector<Scenario>& scenarios, const RunPlan& plan,
                const fs::path& top, FileLock::Kind kind, std::vector<Result>& results)
{
    if (scenarios.empty()) return;
    const FileLock lock{top / "build/tests.lock", kind};
    std::ranges::move(PlayAll(machines, scenarios, plan), std::back_inserter(results));
}

std::vector<Result> PlayChosen(const fs::path& top, const Options& options, const std::vector<Scenario>& scenarios)
{
    const RunPlan plan{.server = top / "build/native/sandbox/server/corvane-server",
                       .out = top / "build/scenarios",
                       .bits = options.arch == "x86" ? 32 : 64,
                       .settings = options.settings,
                       .companion = top / "build" / options.arch / "sandbox/companion/CorvanePlayer.dll",
                       .byCompanion = options.byCompanion};
    std::vector<Scenario> others;
    std::vector<Scenario> alone;
    for (const auto& scenario : scenarios)
        (scenario.Wants("alone") ? alone : others).push_back(scenario);
    // The screen's resolution changes by a restart of the Wine.
    std::stable_partition(alone.begin(), alone.end(),
                          [](const Scenario& one) { return one.One("run").find("--dpi") == std::string::npos; });
    auto machines = MakeMachines(top, options.arch, std::clamp(others.size(), std::size_t{1}, kDesks));
    std::vector<Result> results;
    PlayLocked(machines, others, plan, top, FileLock::Kind::Shared, results);
    Machines one;
    one.push_back(std::move(machines.front()));
    PlayLocked(one, alone, plan, top, FileLock::Kind::Alone, results);
    return results;
}

int PlayAndReport(const fs::path& top, const Options& options)
{
    const auto choice = Choose({top / "build/scenarios/made", top / "tests/scenarios"}, options.names);
    Report report{.facts = {{"Add-in", std::string{CORVANE_VERSION} + ", " + options.arch},
                            {"Host", "corvane-host, the stand-in, in Wine"},
                            {"Played", TimeHere()}},
                  .results = {}};
    for (const auto& name : choice.unknown) {
        report.results.push_back({.name = name, .about = "", .verdict = Verdict::Failed, .words = "is no scenario"});
        std::cout << "FAILED " << name << " is no scenario" << std::endl;
    }
    if (!choice.scenarios.empty())
        std::ranges::move(PlayChosen(top, options, choice.scenarios), std::back_inserter(report.results));
    WriteReports(top / "build/scenarios", report);
    std::cout << SummaryText(report) << std::endl;
    return report.AllPassed() && !Stopping() ? 0 : 1;
}

} // namespace

int main(int count, char** arguments)
{
    WatchForStop();
    try {
        return PlayAndReport(CORVANE_TOP, ReadOptions({arguments + 1, arguments + count}));
    } catch (const std::invalid_argument& problem) {
        std::cerr << "corvane-verify: " << problem.what() << '\n' << kUsage;
        return kBadArguments;
    } catch (const std::exception& problem) {
        std::cerr << "corvane-verify: " << problem.what() << '\n';
        return 1;
    }
}
