// corvane-verify in a folder with the add-in, the host, the server and the scenarios, on a PC that has nothing of ours.
#include "judge/Failure.h"
#include "machine/Choosing.h"
#include "machine/Files.h"
#include "machine/Playing.h"
#include "machine/Reports.h"
#include "machine/Server.h"
#include "platform/Owners.h"
#include "platform/Utf8.h"
#include "windows/InPowerPoint.h"
#include "windows/System.h"
#include "windows/WindowsMachine.h"

#include <algorithm>
#include <climits>
#include <iostream>
#include <shellapi.h>

namespace
{

using namespace verify;
namespace fs = std::filesystem;

constexpr int kBits = CHAR_BIT * sizeof(void*);
constexpr int kBadArguments = 2;
constexpr const char* kUsage =
    "usage: corvane-verify --verify [--companion] [NAME|FILE|FOLDER]... [SETTING=VALUE]...\n"
    "       corvane-verify --powerpoint [PROGRAM.exe] [NAME|FILE|FOLDER]... [SETTING=VALUE]...\n"
    "       corvane-verify --try | --clean\n";

// One at a time changes what a user has in the registry.
class OnlyOne
{
public:
    OnlyOne() : m_mutex{::CreateMutexW(nullptr, FALSE, L"Local\\CorvaneVerify")}
    {
        if (::GetLastError() == ERROR_ALREADY_EXISTS) throw std::runtime_error{"it runs already"};
    }

private:
    corvane::UniqueFile m_mutex;
};

std::vector<std::string> CommandLineWords()
{
    int count = 0;
    wchar_t** const words = ::CommandLineToArgvW(::GetCommandLineW(), &count);
    std::vector<std::string> list;
    std::transform(words + 1, words + count, std::back_inserter(list),
                   [](const wchar_t* word) { return corvane::ToUtf8(word); });
    ::LocalFree(words);
    return list;
}

fs::path Home()
{
    std::wstring path(32768, L'\0');
    path.resize(::GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
    return fs::path{path}.parent_path();
}

struct Wanted
{
    RunPlan plan;
    Choice choice;
};

Wanted ReadWanted(const fs::path& home, const std::vector<std::string>& words)
{
    Wanted wanted{.plan = {.server = home / "corvane-server.exe",
                           .out = home / "report/scenarios",
                           .bits = kBits,
                           .companion = home / "CorvanePlayer.dll"},
                  .choice = {}};
    std::vector<std::string> names;
    for (const auto& word : words)
        if (word == "--companion")
            wanted.plan.byCompanion = true;
        else
            (word.find('=') == std::string::npos ? names : wanted.plan.settings).push_back(word);
    wanted.choice = Choose({home / "scenarios/made", home / "scenarios"}, names);
    return wanted;
}

Report PlayBeside(const fs::path& home, const Wanted& wanted)
{
    Report report{.facts = {{"Add-in", CORVANE_VERSION ", " + std::to_string(kBits) + "-bit"},
                            {"Host", "corvane-host, the stand-in"},
                            {"System", SystemName()},
                            {"Played", TimeHere()}},
                  .results = {}};
    Machines machines;
    machines.push_back(std::make_unique<WindowsMachine>(home));
    report.results = PlayAll(machines, wanted.choice.scenarios, wanted.plan);
    return report;
}

int Tell(const fs::path& home, const Wanted& wanted, Report report)
{
    for (const auto& name : wanted.choice.unknown)
        report.results.push_back({.name = name, .about = "", .verdict = Verdict::Failed, .words = "is no scenario"});
    WriteReports(home / "report", report);
    std::cout << QuestionsText(report) << SummaryText(report)
              << "\nThe report: " << Utf8Of(home / "report" / "report.html") << std::endl;
    return report.AllPassed() && !Stopping() ? 0 : 1;
}

int Verify(const fs::path& home, const std::vector<std::string>& words)
{
    const auto wanted = ReadWanted(home, words);
    return Tell(home, wanted, PlayBeside(home, wanted));
}

// The first word may name the program.
int VerifyInPowerPoint(const fs::path& home, std::vector<std::string> words)
{
    fs::remove(home / "report/report.html"); // lest one of another run is opened where PowerPoint cannot be played in
    fs::path program;
    if (!words.empty() && words.front().ends_with(".exe")) {
        program = PathOf(words.front());
        words.erase(words.begin());
    }
    const auto wanted = ReadWanted(home, words);
    return Tell(home, wanted, PlayInPowerPoint(home, program, wanted.plan, wanted.choice.scenarios));
}

// The server and what is saved stay in "try" of the folder for the next time.
int Try(const fs::path& home)
{
    const auto folder = home / "try";
    fs::create_directories(folder / "documents");
    Server server{home / "corvane-server.exe", folder};
    server.Start(Scenario{});
    WindowsMachine machine{home};
    machine.Reset(folder, {R"(Software\Halvex\Corvane\ServerURLMRU MRUServerURL1=)" + server.Address()});
    std::cout << "The server runs at " << server.Address() << " (user Dana Reyes).\n"
              << "  In the host: File, Save to Corvane, Save as a Deliverable or Activity.\n"
              << "Presentations go to " << Utf8Of(folder / "documents") << ",\nversions to " << Utf8Of(folder / "data")
              << ".\nClose the host's window to end." << std::endl;
    machine.RunForPerson();
    return 0;
}

int Perform(const std::vector<std::string>& words)
{
    const OnlyOne one;
    const auto home = Home();
    const auto mode = words.empty() ? "" : words.front();
    if (mode == "--verify") return Verify(home, {words.begin() + 1, words.end()});
    if (mode == "--try" && words.size() == 1) return Try(home);
    if (mode == "--powerpoint") return VerifyInPowerPoint(home, {words.begin() + 1, words.end()});
    if (mode != "--clean" || words.size() != 1) throw std::invalid_argument{"it needs to know what to do"};
    WindowsMachine::CleanUp(home);
    return 0;
}

} // namespace

int main()
{
    ::SetConsoleOutputCP(CP_UTF8);
    WatchForStop();
    int status = 1;
    try {
        status = Perform(CommandLineWords());
    } catch (const std::invalid_argument& problem) {
        std::cerr << "corvane-verify: " << problem.what() << '\n' << kUsage;
        status = kBadArguments;
    } catch (const std::exception& problem) {
        std::cerr << "corvane-verify: " << problem.what() << '\n';
    }
    TellStopped();
    return status;
}
