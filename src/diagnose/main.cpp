// Tells why the add-in does not show in PowerPoint or does not reach its server.
#include "Version.h"
#include "diagnose/Configuration.h"
#include "diagnose/Console.h"
#include "diagnose/Handover.h"
#include "diagnose/Installation.h"
#include "diagnose/Office.h"
#include "diagnose/Options.h"
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

namespace diagnose
{
namespace
{

constexpr int kNothingFound = 0;
constexpr int kSomethingFound = 1;
constexpr int kWrongUse = 2;

Machine ReadMachine()
{
    constexpr const wchar_t* kWindows = L"Software\\Microsoft\\Windows NT\\CurrentVersion";
    const auto windows = [&](const wchar_t* name) {
        return corvane::Registry::ReadText(kWindows, name, {.hive = corvane::Registry::Hive::Machine}).value_or(L"?");
    };
    const std::wstring build = windows(L"CurrentBuild");
    return {.version = corvane::kVersion,
            .bits = 8 * static_cast<int>(sizeof(void*)),
            .windows = WindowsName(windows(L"ProductName"), corvane::ToLongSafe(build)),
            .build = build};
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

Facts ReadFacts(const Options& options)
{
    return {.powerPoint = FindPowerPoint(),
            .registrations = FindRegistrations(),
            .addIns = FindAddIns(),
            .officeEntries = FindOfficeEntries(),
            .missingComponents = MissingComponents(),
            .server = Ask(options)};
}

Diagnosis Diagnose(const Options& options)
{
    Diagnosis diagnosis;
    diagnosis.machine = ReadMachine();
    diagnosis.facts = ReadFacts(options);
    if (options.switchesOn) diagnosis.switchedOn = SwitchOn(diagnosis.facts);
    diagnosis.configuration = ReadConfiguration(diagnosis.facts);
    diagnosis.lastTrace = FindLastTrace();
    diagnosis.findings = FindingsOf(diagnosis.facts);
    return diagnosis;
}

int RemoveOldTraces(int days)
{
    const TraceRemoval removal = RemoveTraces(days);
    Print(L"Trace files removed: " + std::to_wstring(removal.removed) + L"\r\nTrace files left: " +
          std::to_wstring(removal.left) +
          (removal.refused == 0 ? L"" : L", " + std::to_wstring(removal.refused) + L" of them could not be removed") +
          L"\r\n");
    return removal.refused == 0 ? kNothingFound : kSomethingFound;
}

std::wstring ArchiveOf(const Options& options)
{
    return options.toDesktop ? corvane::DesktopFolder() + L"\\corvane-diagnosis.zip" : options.archive;
}

int Run(const Options& options)
{
    if (options.oldestTraceDays) return RemoveOldTraces(*options.oldestTraceDays);
    if (options.toDesktop) Print(L"Looking at this PC; a server that does not answer takes a while.\r\n\r\n");
    const Diagnosis diagnosis = Diagnose(options);
    Print(options.asJson ? JsonOf(diagnosis) : TextOf(diagnosis));
    const std::wstring archive = ArchiveOf(options);
    if (!archive.empty()) WriteHandover(archive, diagnosis);
    if (!archive.empty() && !options.asJson) Print(L"Written for your support: " + archive + L"\r\n");
    return diagnosis.findings.empty() ? kNothingFound : kSomethingFound;
}

} // namespace
} // namespace diagnose

int wmain(int count, wchar_t** arguments)
{
    corvane::SearchSystemFolderOnly();
    corvane::Library::SetModule(::GetModuleHandleW(nullptr));
    const std::vector<std::wstring> given(arguments + 1, arguments + std::max(count, 1));
    const auto options = diagnose::ReadOptions(given);
    if (!options) {
        diagnose::Complain(diagnose::kUsage);
        return diagnose::kWrongUse;
    }
    ::CoInitialize(nullptr);
    int status = diagnose::kWrongUse;
    const auto error = corvane::Catch([&] { status = diagnose::Run(*options); });
    if (error) diagnose::Complain(L"corvane-diagnose: " + error->Description() + L"\r\n");
    if (options->toDesktop) diagnose::WaitForKey();
    ::CoUninitialize();
    return status;
}
