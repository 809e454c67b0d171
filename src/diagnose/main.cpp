// Tells why the add-in does not show in PowerPoint or does not reach its server.
#include "Version.h"
#include "diagnose/Facts.h"
#include "diagnose/Installation.h"
#include "diagnose/Office.h"
#include "diagnose/Report.h"
#include "diagnose/ServerCheck.h"
#include "diagnose/SwitchOn.h"
#include "diagnose/TraceFiles.h"

#include "platform/ComObject.h"
#include "platform/Files.h"
#include "platform/Procedure.h"
#include "platform/Registry.h"
#include "platform/SystemLibrary.h"
#include "support/CMRUServers.h"
#include "support/Conversions.h"
#include "support/Policy.h"
#include "support/ServerList.h"
#include "support/ServerPolicy.h"
#include "support/Settings.h"

#include <cstdio>
#include <span>

namespace diagnose
{
namespace
{

constexpr int kNothingFound = 0;
constexpr int kSomethingFound = 1;
constexpr int kWrongUse = 2;

struct Options
{
    std::wstring server;
    std::chrono::seconds limit{20};
    bool switchesOn = false;
};

std::optional<Options> Read(std::span<wchar_t*> arguments)
{
    Options options;
    for (std::size_t index = 1; index < arguments.size(); ++index) {
        const std::wstring name = arguments[index];
        if (name == L"--switch-on") {
            options.switchesOn = true;
            continue;
        }
        const bool known = name == L"--server" || name == L"--timeout";
        if (!known || ++index == arguments.size()) return std::nullopt;
        const std::wstring value = arguments[index];
        if (name == L"--server")
            options.server = value;
        else
            options.limit = std::chrono::seconds{corvane::ToLongSafe(value)};
    }
    if (options.limit.count() <= 0) return std::nullopt;
    return options;
}

std::wstring Joined(const std::vector<std::wstring>& texts)
{
    std::wstring joined;
    for (const std::wstring& text : texts)
        joined += (joined.empty() ? L"" : L", ") + text;
    return joined.empty() ? L"none" : joined;
}

std::wstring BitsText(int bits) { return bits == 0 ? L"bitness unknown" : std::to_wstring(bits) + L"-bit"; }

void TellProgram(Report& report)
{
    constexpr const wchar_t* kWindows = L"Software\\Microsoft\\Windows NT\\CurrentVersion";
    const auto windows = [&](const wchar_t* name) {
        return corvane::Registry::ReadText(kWindows, name, {.hive = corvane::Registry::Hive::Machine}).value_or(L"?");
    };
    report.Line(L"Program", std::to_wstring(corvane::kVersionMajor) + L"." + std::to_wstring(corvane::kVersionMinor) +
                                L"." + std::to_wstring(corvane::kVersionRevision) + L", " +
                                BitsText(8 * static_cast<int>(sizeof(void*))));
    const std::wstring build = windows(L"CurrentBuild");
    report.Line(L"Windows", WindowsName(windows(L"ProductName"), corvane::ToLongSafe(build)) + L", build " + build);
}

void TellInstallation(Report& report, const Facts& facts)
{
    const PowerPoint& powerPoint = facts.powerPoint;
    report.Line(L"PowerPoint",
                (powerPoint.program.empty() ? L"not found" : powerPoint.program) + L", " + BitsText(powerPoint.bits));
    if (facts.registrations.empty()) report.Line(L"Registered", L"nowhere");
    for (const Registration& entry : facts.registrations)
        report.Line(L"Registered for " + entry.where,
                    entry.library + L", " +
                        (entry.libraryExists ? entry.libraryVersion + L", " + BitsText(entry.libraryBits)
                                             : std::wstring{L"not there"}));
    if (facts.addIns.empty()) report.Line(L"LoadBehavior", L"none");
    for (const AddInEntry& entry : facts.addIns)
        report.Line(L"LoadBehavior for " + entry.where, std::to_wstring(entry.loadBehavior));
    if (facts.officeEntries.empty()) report.Line(L"Office about the add-in", L"nothing");
    for (const OfficeEntry& entry : facts.officeEntries)
        report.Line(L"Office about the add-in", entry.where + (entry.blocks ? L" (blocks it)" : L""));
}

std::wstring FolderOfLibrary(const Facts& facts)
{
    for (const Registration& entry : facts.registrations)
        if (entry.libraryExists) return entry.library.substr(0, entry.library.find_last_of(L"\\/"));
    return corvane::Library::Folder();
}

void TellServerPolicy(Report& report, const corvane::ServerPolicy& policy)
{
    std::vector<std::wstring> offered;
    for (const std::wstring& server : policy.offered)
        offered.push_back(corvane::WithoutCredentials(server));
    std::vector<std::wstring> renames;
    for (const std::wstring& rename : policy.renames)
        renames.push_back(corvane::WithoutCredentialsInText(rename));
    std::vector<std::wstring> rules;
    if (policy.offeredOnly) rules.emplace_back(L"only these");
    if (policy.requireHttps) rules.emplace_back(L"https only");
    report.Line(L"Servers by policy", Joined(offered));
    report.Line(L"Server rules by policy", Joined(rules));
    report.Line(L"Renamed servers by policy", Joined(renames));
}

void TellSettings(Report& report, const Facts& facts)
{
    const std::wstring folder = FolderOfLibrary(facts);
    const std::wstring file = folder + L"\\settings.config";
    const corvane::Settings settings = corvane::Settings::ReadFrom(folder);
    const auto source = [](const wchar_t* name) { return corvane::Policy::Number(name) ? L" (by policy)" : L""; };
    report.Line(L"Settings", file + (corvane::FileExists(file) ? L"" : L", not there"));
    report.Line(L"Trace", (settings.traceEnabled ? std::wstring{L"on"} : L"off") + source(L"EnableTraceLogs"));
    report.Line(L"Request time-out",
                std::to_wstring(settings.requestTimeout.count()) + L" s" + source(L"RequestTimeoutSeconds"));
    TellServerPolicy(report, corvane::ReadServerPolicy());
    report.Line(L"Client events", corvane::Policy::Number(L"ClientEvents") == 0 ? L"off (by policy)" : L"on");
    report.Line(L"MSXML", Joined(ParserVersions()));
}

void TellTrace(Report& report)
{
    const auto trace = FindLastTrace();
    if (!trace) {
        report.Line(L"Last trace", L"none");
        return;
    }
    report.Line(L"Last trace", trace->file);
    report.Line(L"Errors in it", std::to_wstring(trace->errors) +
                                     (trace->errors == 0 ? L"" : L", the last is number " + trace->lastNumber));
}

// The server to ask: the given one, else the one that the add-in offers first.
std::optional<ServerAnswer> Ask(const Options& options)
{
    std::wstring server = options.server;
    const auto offered = corvane::CMRUServers{}.GetURLs();
    if (server.empty() && !offered.empty()) server = offered.front();
    if (server.empty()) return std::nullopt;
    const corvane::ServerDecision decision = corvane::DecideServer(corvane::VerifyServerURL(server));
    ServerAnswer answer = AskServer(decision.address, options.limit);
    if (decision.refusal == corvane::ServerRefusal::None) return answer;
    answer.good = false;
    answer.outcome += L", but the policy refuses it";
    return answer;
}

int Run(const Options& options)
{
    Facts facts;
    facts.powerPoint = FindPowerPoint();
    facts.registrations = FindRegistrations();
    facts.addIns = FindAddIns();
    facts.officeEntries = FindOfficeEntries();
    facts.missingComponents = MissingComponents();
    facts.server = Ask(options);
    Report report;
    TellProgram(report);
    if (options.switchesOn) report.Line(L"Switched on", SwitchOn(facts));
    TellInstallation(report, facts);
    TellSettings(report, facts);
    report.Line(L"Server", facts.server ? facts.server->server + L": " + facts.server->outcome : L"not asked");
    TellTrace(report);
    const auto findings = FindingsOf(facts);
    report.Findings(findings);
    report.Write();
    return findings.empty() ? kNothingFound : kSomethingFound;
}

} // namespace
} // namespace diagnose

int wmain(int count, wchar_t** arguments)
{
    corvane::SearchSystemFolderOnly();
    corvane::Library::SetModule(::GetModuleHandleW(nullptr));
    const auto options = diagnose::Read({arguments, static_cast<std::size_t>(count)});
    if (!options) {
        std::fputs("usage: corvane-diagnose [--server URL] [--timeout SECONDS] [--switch-on]\n", stderr);
        return diagnose::kWrongUse;
    }
    ::CoInitialize(nullptr);
    int status = diagnose::kWrongUse;
    const auto error = corvane::Catch([&] { status = diagnose::Run(*options); });
    if (error) std::fprintf(stderr, "corvane-diagnose: %ls\n", error->Description().c_str());
    ::CoUninitialize();
    return status;
}
