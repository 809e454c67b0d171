#include "diagnose/Configuration.h"

#include "diagnose/Installation.h"
#include "diagnose/Masking.h"
#include "platform/ComObject.h"
#include "platform/Files.h"
#include "platform/Registry.h"
#include "support/Policy.h"
#include "support/ServerList.h"
#include "support/Settings.h"

namespace diagnose
{
namespace
{

using corvane::Registry::Hive;
using corvane::Registry::Place;

std::wstring FolderOfLibrary(const Facts& facts)
{
    for (const Registration& entry : facts.registrations)
        if (entry.libraryExists) return entry.library.substr(0, entry.library.find_last_of(L"\\/"));
    return corvane::Library::Folder();
}

void ReadServerRules(Configuration& configuration)
{
    const corvane::ServerPolicy policy = corvane::ReadServerPolicy();
    for (const std::wstring& server : policy.offered)
        configuration.offeredServers.push_back(corvane::WithoutCredentials(corvane::VerifyServerURL(server)));
    for (const std::wstring& rename : policy.renames)
        configuration.serverRenames.push_back(MaskedValue(rename));
    configuration.offeredServersOnly = policy.offeredOnly;
    configuration.requiresHttps = policy.requireHttps;
}

std::wstring ValueText(const std::wstring& key, const std::wstring& name, Place place)
{
    if (const auto text = corvane::Registry::ReadText(key, name, place)) return MaskedValue(*text);
    if (const auto number = corvane::Registry::ReadNumber(key, name, place)) return std::to_wstring(*number);
    return L"(of a type that the add-in does not read)";
}

std::wstring KeyText(const std::wstring& hive, const std::wstring& key, Place place)
{
    const std::wstring path = key + L"\\";
    std::wstring text;
    for (const std::wstring& name : corvane::Registry::ValueNames(key, place))
        text.append(hive).append(path).append(name).append(L" = ").append(ValueText(key, name, place)).append(L"\r\n");
    for (const std::wstring& name : corvane::Registry::KeyNames(key, place))
        text += KeyText(hive, path + name, place);
    return text;
}

} // namespace

Configuration ReadConfiguration(const Facts& facts)
{
    const std::wstring folder = FolderOfLibrary(facts);
    const corvane::Settings settings = corvane::Settings::ReadFrom(folder);
    Configuration configuration;
    configuration.settingsFile = folder + L"\\settings.config";
    configuration.settingsFileExists = corvane::FileExists(configuration.settingsFile);
    configuration.traceEnabled = settings.traceEnabled;
    configuration.traceByPolicy = corvane::Policy::Number(L"EnableTraceLogs").has_value();
    configuration.timeoutSeconds = settings.requestTimeout.count();
    configuration.timeoutByPolicy = corvane::Policy::Number(L"RequestTimeoutSeconds").has_value();
    ReadServerRules(configuration);
    configuration.allowsClientEvents = corvane::Policy::Number(L"ClientEvents") != 0;
    configuration.parsers = ParserVersions();
    return configuration;
}

std::wstring PolicyText()
{
    const std::wstring text = KeyText(L"HKEY_LOCAL_MACHINE\\", corvane::Policy::kKey, {.hive = Hive::Machine}) +
                              KeyText(L"HKEY_CURRENT_USER\\", corvane::Policy::kKey, {.hive = Hive::User});
    return text.empty() ? L"none\r\n" : text;
}

} // namespace diagnose
