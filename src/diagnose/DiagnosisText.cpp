#include "diagnose/Diagnosis.h"

namespace diagnose
{
namespace
{

std::wstring Line(const std::wstring& name, const std::wstring& text) { return name + L": " + text + L"\r\n"; }

std::wstring Joined(const std::vector<std::wstring>& texts)
{
    std::wstring joined;
    for (const std::wstring& text : texts)
        joined += (joined.empty() ? L"" : L", ") + text;
    return joined.empty() ? L"none" : joined;
}

std::wstring BitsText(int bits) { return bits == 0 ? L"bitness unknown" : std::to_wstring(bits) + L"-bit"; }

std::wstring MachineText(const Machine& machine)
{
    return Line(L"Program", machine.version + L", " + BitsText(machine.bits)) +
           Line(L"Windows", machine.windows + L", build " + machine.build);
}

std::wstring InstallationText(const Facts& facts)
{
    const PowerPoint& powerPoint = facts.powerPoint;
    std::wstring text = Line(L"PowerPoint", (powerPoint.program.empty() ? L"not found" : powerPoint.program) + L", " +
                                                BitsText(powerPoint.bits));
    if (facts.registrations.empty()) text += Line(L"Registered", L"nowhere");
    for (const Registration& entry : facts.registrations)
        text += Line(L"Registered for " + entry.where,
                     entry.library + L", " +
                         (entry.libraryExists ? entry.libraryVersion + L", " + BitsText(entry.libraryBits)
                                              : std::wstring{L"not there"}));
    if (facts.addIns.empty()) text += Line(L"LoadBehavior", L"none");
    for (const AddInEntry& entry : facts.addIns)
        text += Line(L"LoadBehavior for " + entry.where, std::to_wstring(entry.loadBehavior));
    if (facts.officeEntries.empty()) text += Line(L"Office about the add-in", L"nothing");
    for (const OfficeEntry& entry : facts.officeEntries)
        text += Line(L"Office about the add-in", entry.where + (entry.blocks ? L" (blocks it)" : L""));
    return text;
}

std::wstring ServerPolicyText(const Configuration& configuration)
{
    std::vector<std::wstring> rules;
    if (configuration.offeredServersOnly) rules.emplace_back(L"only these");
    if (configuration.requiresHttps) rules.emplace_back(L"https only");
    return Line(L"Servers by policy", Joined(configuration.offeredServers)) +
           Line(L"Server rules by policy", Joined(rules)) +
           Line(L"Renamed servers by policy", Joined(configuration.serverRenames));
}

std::wstring ConfigurationText(const Configuration& configuration)
{
    const auto source = [](bool byPolicy) { return byPolicy ? L" (by policy)" : L""; };
    return Line(L"Settings", configuration.settingsFile + (configuration.settingsFileExists ? L"" : L", not there")) +
           Line(L"Trace",
                (configuration.traceEnabled ? std::wstring{L"on"} : L"off") + source(configuration.traceByPolicy)) +
           Line(L"Request time-out",
                std::to_wstring(configuration.timeoutSeconds) + L" s" + source(configuration.timeoutByPolicy)) +
           ServerPolicyText(configuration) +
           Line(L"Client events", configuration.allowsClientEvents ? L"on" : L"off (by policy)") +
           Line(L"MSXML", Joined(configuration.parsers));
}

std::wstring TraceText(const std::optional<LastTrace>& trace)
{
    if (!trace) return Line(L"Last trace", L"none");
    return Line(L"Last trace", trace->file) +
           Line(L"Errors in it", std::to_wstring(trace->errors) +
                                     (trace->errors == 0 ? L"" : L", the last is number " + trace->lastNumber));
}

std::wstring FindingsText(const std::vector<std::wstring>& findings)
{
    std::wstring text = Line(L"Findings", findings.empty() ? L"none" : std::to_wstring(findings.size()));
    for (std::size_t index = 0; index < findings.size(); ++index)
        text += std::to_wstring(index + 1) + L". " + findings[index] + L"\r\n";
    return text;
}

} // namespace

std::wstring TextOf(const Diagnosis& diagnosis)
{
    const auto& server = diagnosis.facts.server;
    std::wstring text = MachineText(diagnosis.machine);
    if (diagnosis.switchedOn) text += Line(L"Switched on", *diagnosis.switchedOn);
    text += InstallationText(diagnosis.facts) + ConfigurationText(diagnosis.configuration);
    text += Line(L"Server", server ? server->server + L": " + server->outcome : L"not asked");
    return text + TraceText(diagnosis.lastTrace) + FindingsText(diagnosis.findings);
}

} // namespace diagnose
