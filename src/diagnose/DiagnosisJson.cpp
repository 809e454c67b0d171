#include "diagnose/Diagnosis.h"

#include <concepts>
#include <string_view>
#include <utility>

namespace diagnose
{
namespace
{

std::wstring Json(std::wstring_view text)
{
    constexpr std::wstring_view kDigits = L"0123456789abcdef";
    std::wstring quoted = L"\"";
    for (const wchar_t letter : text) {
        const auto code = static_cast<unsigned>(letter);
        if (letter == L'"' || letter == L'\\')
            quoted.append(L"\\").append(1, letter);
        else if (code < L' ')
            quoted.append(L"\\u00").append(1, kDigits[code >> 4U]).append(1, kDigits[code & 0xFU]);
        else
            quoted += letter;
    }
    return quoted + L'"';
}

template<std::integral Value>
std::wstring Json(Value value)
{
    if constexpr (std::same_as<Value, bool>)
        return value ? L"true" : L"false";
    else
        return std::to_wstring(value);
}

// Members by their names, in order; what has no value is left out.
std::wstring Object(std::initializer_list<std::pair<std::wstring_view, std::wstring>> members)
{
    std::wstring object;
    for (const auto& [name, value] : members)
        if (!value.empty()) object.append(object.empty() ? L"" : L",").append(Json(name)).append(L":").append(value);
    return L"{" + object + L"}";
}

std::wstring Json(const PowerPoint& powerPoint)
{
    return Object({{L"program", Json(powerPoint.program)}, {L"bits", Json(powerPoint.bits)}});
}

std::wstring Json(const Registration& entry)
{
    return Object({{L"where", Json(entry.where)},
                   {L"bits", Json(entry.bits)},
                   {L"library", Json(entry.library)},
                   {L"libraryExists", Json(entry.libraryExists)},
                   {L"libraryBits", Json(entry.libraryBits)},
                   {L"libraryVersion", Json(entry.libraryVersion)}});
}

std::wstring Json(const AddInEntry& entry)
{
    return Object(
        {{L"where", Json(entry.where)}, {L"bits", Json(entry.bits)}, {L"loadBehavior", Json(entry.loadBehavior)}});
}

std::wstring Json(const OfficeEntry& entry)
{
    return Object({{L"where", Json(entry.where)}, {L"blocks", Json(entry.blocks)}});
}

std::wstring Json(const ServerAnswer& answer)
{
    return Object({{L"address", Json(answer.server)},
                   {L"outcome", Json(answer.outcome)},
                   {L"status", Json(answer.status)},
                   {L"good", Json(answer.good)}});
}

std::wstring Json(const LastTrace& trace)
{
    return Object(
        {{L"file", Json(trace.file)}, {L"errors", Json(trace.errors)}, {L"lastNumber", Json(trace.lastNumber)}});
}

template<class Value>
std::wstring Json(const std::optional<Value>& value)
{
    return value ? Json(*value) : std::wstring{};
}

template<class Value>
std::wstring Json(const std::vector<Value>& values)
{
    std::wstring list;
    for (const Value& value : values)
        list += (list.empty() ? L"" : L",") + Json(value);
    return L"[" + list + L"]";
}

std::wstring Json(const Configuration& configuration)
{
    return Object({{L"file", Json(configuration.settingsFile)},
                   {L"fileExists", Json(configuration.settingsFileExists)},
                   {L"trace", Json(configuration.traceEnabled)},
                   {L"traceByPolicy", Json(configuration.traceByPolicy)},
                   {L"timeoutSeconds", Json(configuration.timeoutSeconds)},
                   {L"timeoutByPolicy", Json(configuration.timeoutByPolicy)},
                   {L"offeredServers", Json(configuration.offeredServers)},
                   {L"offeredServersOnly", Json(configuration.offeredServersOnly)},
                   {L"requireHttps", Json(configuration.requiresHttps)},
                   {L"serverRenames", Json(configuration.serverRenames)},
                   {L"clientEvents", Json(configuration.allowsClientEvents)}});
}

} // namespace

std::wstring JsonOf(const Diagnosis& diagnosis)
{
    const auto& [machine, switchedOn, facts, configuration, lastTrace, findings] = diagnosis;
    return Object({{L"program", Object({{L"version", Json(machine.version)}, {L"bits", Json(machine.bits)}})},
                   {L"windows", Object({{L"name", Json(machine.windows)}, {L"build", Json(machine.build)}})},
                   {L"switchedOn", Json(switchedOn)},
                   {L"powerPoint", Json(facts.powerPoint)},
                   {L"registrations", Json(facts.registrations)},
                   {L"addIns", Json(facts.addIns)},
                   {L"office", Json(facts.officeEntries)},
                   {L"missingComponents", Json(facts.missingComponents)},
                   {L"settings", Json(configuration)},
                   {L"msxml", Json(configuration.parsers)},
                   {L"server", Json(facts.server)},
                   {L"lastTrace", Json(lastTrace)},
                   {L"findings", Json(findings)}}) +
           L"\r\n";
}

} // namespace diagnose
