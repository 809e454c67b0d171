#include "diagnose/Diagnosis.h"
#include "diagnose/JsonObject.h"

namespace diagnose
{
namespace
{

JsonObject Json(const PowerPoint& powerPoint)
{
    return JsonObject{}.Text(L"program", powerPoint.program).Number(L"bits", powerPoint.bits);
}

JsonObject Json(const Registration& entry)
{
    return JsonObject{}
        .Text(L"where", entry.where)
        .Number(L"bits", entry.bits)
        .Text(L"library", entry.library)
        .Flag(L"libraryExists", entry.libraryExists)
        .Number(L"libraryBits", entry.libraryBits)
        .Text(L"libraryVersion", entry.libraryVersion);
}

JsonObject Json(const AddInEntry& entry)
{
    return JsonObject{}
        .Text(L"where", entry.where)
        .Number(L"bits", entry.bits)
        .Number(L"loadBehavior", entry.loadBehavior);
}

JsonObject Json(const OfficeEntry& entry)
{
    return JsonObject{}.Text(L"where", entry.where).Flag(L"blocks", entry.blocks);
}

JsonObject Json(const ServerAnswer& answer)
{
    return JsonObject{}
        .Text(L"address", answer.server)
        .Text(L"outcome", answer.outcome)
        .Number(L"status", answer.status)
        .Flag(L"good", answer.good);
}

JsonObject Json(const LastTrace& trace)
{
    return JsonObject{}
        .Text(L"file", trace.file)
        .Number(L"errors", static_cast<std::int64_t>(trace.errors))
        .Text(L"lastNumber", trace.lastNumber);
}

JsonObject Json(const Configuration& configuration)
{
    return JsonObject{}
        .Text(L"file", configuration.settingsFile)
        .Flag(L"fileExists", configuration.settingsFileExists)
        .Flag(L"trace", configuration.traceEnabled)
        .Flag(L"traceByPolicy", configuration.traceByPolicy)
        .Number(L"timeoutSeconds", configuration.timeoutSeconds)
        .Flag(L"timeoutByPolicy", configuration.timeoutByPolicy)
        .Texts(L"offeredServers", configuration.offeredServers)
        .Flag(L"offeredServersOnly", configuration.offeredServersOnly)
        .Flag(L"requireHttps", configuration.requiresHttps)
        .Texts(L"serverRenames", configuration.serverRenames)
        .Flag(L"clientEvents", configuration.allowsClientEvents);
}

template<class Value>
std::vector<JsonObject> Json(const std::vector<Value>& values)
{
    std::vector<JsonObject> objects;
    objects.reserve(values.size());
    for (const Value& value : values)
        objects.push_back(Json(value));
    return objects;
}

} // namespace

std::wstring JsonOf(const Diagnosis& diagnosis)
{
    const auto& [machine, switchedOn, facts, configuration, lastTrace, findings] = diagnosis;
    JsonObject all;
    all.Object(L"program", JsonObject{}.Text(L"version", machine.version).Number(L"bits", machine.bits));
    all.Object(L"windows", JsonObject{}.Text(L"name", machine.windows).Text(L"build", machine.build));
    if (switchedOn) all.Text(L"switchedOn", *switchedOn);
    all.Object(L"powerPoint", Json(facts.powerPoint));
    all.Objects(L"registrations", Json(facts.registrations));
    all.Objects(L"addIns", Json(facts.addIns));
    all.Objects(L"office", Json(facts.officeEntries));
    all.Texts(L"missingComponents", facts.missingComponents);
    all.Object(L"settings", Json(configuration));
    all.Texts(L"msxml", configuration.parsers);
    if (facts.server) all.Object(L"server", Json(*facts.server));
    if (lastTrace) all.Object(L"lastTrace", Json(*lastTrace));
    return all.Texts(L"findings", findings).Written() + L"\r\n";
}

} // namespace diagnose
