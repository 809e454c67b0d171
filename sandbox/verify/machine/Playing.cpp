#include "machine/Playing.h"

#include "companion/Agreement.h"
#include "judge/Checks.h"
#include "judge/Failure.h"
#include "judge/Text.h"
#include "machine/Files.h"
#include "machine/Order.h"
#include "machine/Server.h"
#include "machine/Suits.h"
#include "platform/Utf8.h"

#include <array>
#include <atomic>
#include <cstdio>
#include <ctime>
#include <mutex>
#include <thread>

namespace verify
{
namespace
{

using Clock = std::chrono::steady_clock;

constexpr auto kPatience = std::chrono::seconds{300};
constexpr const char* kUnloaded = "DllCanUnloadNow: S_OK"; // of a library
const std::string kMailLinks = R"(Software\Classes\mailto\shell\open\command =)";
constexpr const char* kUsedServer = R"(Software\Halvex\Corvane\ServerURLMRU MRUServerURL1=${SERVER})";

// The day as mails show it.
std::string Today()
{
    const std::time_t now = std::time(nullptr);
    std::array<char, 32> text{};
    std::strftime(text.data(), text.size(), "%b %d, %Y", std::localtime(&now));
    return text.data();
}

// The registration of the player's library, each value as a scenario would ask for it.
std::vector<std::string> RegistrationOf(const std::string& library)
{
    std::vector<std::string> values;
    for (const auto& [key, name, content] : corvane::companion::RegistryValues(corvane::FromUtf8(library))) {
        auto value = corvane::ToUtf8(key).append(" ").append(corvane::ToUtf8(name)).append("=");
        if (const auto* text = std::get_if<std::wstring>(&content))
            value += corvane::ToUtf8(*text);
        else
            value += "dword:" + std::to_string(std::get<std::int32_t>(content));
        values.push_back(std::move(value));
    }
    return values;
}

std::vector<std::string> ProfileOf(const Scenario& scenario, const std::string& server, bool foreign)
{
    auto values = scenario.All("registry");
    if (const auto command = MailClientOf(scenario); foreign && !command.empty())
        values.push_back(kMailLinks + command); // a stand-in writes it itself
    if (scenario.One("servers") != "none") values.insert(values.begin(), kUsedServer);
    for (auto& value : values)
        value = Replaced(value, "${SERVER}", server);
    return values;
}

std::vector<std::string> SettingsOf(const Machine& machine, const Scenario& scenario,
                                    const std::filesystem::path& folder, const std::string& server)
{
    std::vector<std::string> settings{"SERVER=" + server, "HOST=" + CutAt(server, "//").second,
                                      "FOLDER=" + machine.HostPath(folder),
                                      "BESIDE=" + SlashedUtf8Of(scenario.file.parent_path()), "TODAY=" + Today()};
    for (auto& set : scenario.All("set"))
        settings.push_back(std::move(set));
    return settings;
}

// The host's own words prove that it ran at all: Wine reports success for a program that it cannot run.
void RequirePassed(const Played& played, const Scenario& scenario, const RunPlan& plan, bool byCompanion)
{
    const auto width = std::to_string(plan.bits) + "-bit";
    const auto passed = "scenario passed: " + Utf8Of(scenario.file.filename()) + " (";
    const auto at = played.printed.find(passed);
    const auto line = at == std::string::npos ? "" : CutAt(std::string_view{played.printed}.substr(at), "\n").first;
    const auto status = played.status ? std::to_string(*played.status)
                        : Stopping()  ? "none, it was stopped"
                                      : "none in time";
    Require((played.status == 0 || !played.left.empty()) && line.find(", " + width + ")") != std::string::npos,
            "no " + width + " host passed: exit status " + status);
    const auto first = played.printed.find(kUnloaded);
    const bool second = first != std::string::npos && played.printed.find(kUnloaded, first + 1) != std::string::npos;
    Require(plan.foreign || (byCompanion ? second : first != std::string::npos),
            "a library cannot be unloaded after the disconnection");
}

void RequireNoTemporaryFiles(const Machine& machine)
{
    std::string left;
    for (const auto& file : machine.TemporaryFiles())
        left += " " + Utf8Of(file);
    Require(left.empty(), "temporary files are left:" + left);
}

Outcome Collected(const Machine& machine, const Server& server, const std::filesystem::path& folder, Played played)
{
    Outcome outcome{.server = server.Address(),
                    .requests = server.Requests(),
                    .versions = server.Versions(),
                    .traces = {},
                    .processor = std::move(played.processor),
                    .file = [folder](const std::string& name) { return ReadIfThere(folder / PathOf(name)); },
                    .ribbonFaults = [&machine, folder](
                                        const std::string& edition) { return machine.RibbonFaults(folder, edition); }};
    for (const auto& trace : machine.Traces())
        outcome.traces.push_back(ReadOrEmpty(trace));
    return outcome;
}

// Fills in how it went.
void Judge(Machine& machine, const Scenario& scenario, const RunPlan& plan, Result& result)
{
    const auto folder = plan.out / PathOf(scenario.name);
    const bool byCompanion = !plan.companion.empty() && (plan.byCompanion || scenario.Wants("companion"));
    Server server{plan.server, folder};
    Played played;
    try {
        std::filesystem::remove_all(folder);
        std::filesystem::create_directories(folder / "documents");
        server.Start(scenario);
        auto values = ProfileOf(scenario, server.Address(), plan.foreign);
        if (byCompanion)
            std::ranges::move(RegistrationOf(machine.HostPath(plan.companion)), std::back_inserter(values));
        machine.Reset(folder, values);
        auto settings = SettingsOf(machine, scenario, folder, server.Address());
        settings.insert(settings.end(), plan.settings.begin(), plan.settings.end());
        played =
            machine.Run({scenario, folder, settings, plan.settings.empty() ? std::optional{kPatience} : std::nullopt,
                         byCompanion, plan.foreign});
        server.Stop();
        if (byCompanion) result.words = ReportedBehind(played.printed, corvane::companion::kMisfitWords);
        if (!result.words.empty()) {
            if (plan.foreign) result.words.insert(0, corvane::ToUtf8(corvane::companion::kMisfitWords));
            result.verdict = Verdict::NotHere;
            return;
        }
        RequirePassed(played, scenario, plan, byCompanion);
        RequireNoTemporaryFiles(machine);
        const auto newName = ReportedBehind(played.printed, corvane::companion::kNewNameWords);
        result.remarks =
            Check(newName.empty() ? scenario : Worded(scenario, newName), Collected(machine, server, folder, played));
    } catch (const std::exception& problem) {
        server.Stop();
        result.verdict = Verdict::Failed;
        result.words = std::string{problem.what()} + "\n--- host\n" + played.printed + "--- server\n" + server.Told();
    }
}

std::string FirstComment(const Scenario& scenario)
{
    std::string comment;
    for (const auto& line : Lines(scenario.text)) {
        if (!line.starts_with("# ")) break;
        comment += (comment.empty() ? "" : " ") + line.substr(2);
    }
    return comment;
}

void Tell(const Result& result)
{
    std::fputs(ResultText(result).c_str(), stdout);
    std::fflush(stdout);
}

} // namespace

Result PlayScenario(Machine& machine, const Scenario& scenario, const RunPlan& plan)
{
    Result result{.name = scenario.name, .about = FirstComment(scenario)};
    result.words = machine.Refuses(scenario);
    if (result.words.empty() && plan.byCompanion && scenario.Wants("host"))
        result.words = "its host is another: " + scenario.One("host");
    if (!result.words.empty()) {
        result.verdict = Verdict::NotHere;
        return result;
    }
    const auto folder = plan.out / PathOf(scenario.name);
    const auto start = Clock::now();
    Judge(machine, scenario, plan, result);
    result.seconds = std::chrono::duration<double>(Clock::now() - start).count();
    for (const auto& file : FilesIn(folder, ".png"))
        result.pictures.push_back({Utf8Of(file.filename()), ReadOrEmpty(file)});
    return result;
}

std::vector<Result> PlayAll(const Machines& machines, const std::vector<Scenario>& scenarios, const RunPlan& plan)
{
    std::atomic<std::size_t> next = 0;
    std::mutex telling;
    std::vector<Result> results;
    const auto play = [&](Machine& machine) {
        for (std::size_t at = next++; at < scenarios.size() && !Stopping(); at = next++) {
            auto result = PlayScenario(machine, scenarios[at], plan);
            const std::lock_guard one{telling};
            Tell(result);
            results.push_back(std::move(result));
        }
    };
    std::vector<std::jthread> players;
    for (const auto& machine : machines)
        players.emplace_back([&play, &machine] { play(*machine); });
    for (auto& player : players)
        player.join();
    return results;
}

} // namespace verify
