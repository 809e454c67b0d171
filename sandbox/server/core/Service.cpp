#include "core/Service.h"

#include "core/Seed.h"
#include "core/ServiceError.h"

#include <stdexcept>

namespace server
{

namespace
{

User ChooseUser(const Catalogue& catalogue, std::string_view name)
{
    if (name.empty()) return catalogue.users.front();
    if (const auto* user = catalogue.FindUser(name)) return *user;
    std::string message = "There is no user '" + std::string{name} + "'. Users: ";
    for (const auto& user : catalogue.users)
        message += (&user == &catalogue.users.front() ? "" : ", ") + user.name;
    throw std::invalid_argument{message};
}

Settings ReadSettings(nlohmann::json json, const nlohmann::json& overrides)
{
    json.merge_patch(overrides);
    Settings settings;
    settings.maxFileUploadSize = json.at("MaxFileUploadSize");
    settings.publishByDefault = json.at("AutomaticallySetPublishCheckbox");
    for (const auto& [token, value] : json.at("customNames").items())
        settings.configuration.emplace_back(token, value);
    settings.configuration.emplace_back("EnableOFFIClientEvents", json.at("EnableOFFIClientEvents"));
    return settings;
}

int LastNumber(const std::vector<Version>& versions) { return versions.empty() ? 0 : versions.back().number; }

} // namespace

Service::Service(const nlohmann::json& seed, std::string_view userName, Archive archive, Clock clock)
    : m_shown{ReadSeed(seed, false)}, m_atRecording{ReadSeed(seed, true)}, m_user{ChooseUser(m_shown, userName)},
      m_archive{std::move(archive)}, m_clock{std::move(clock)}, m_settings{ReadSettings(seed.at("settings"),
                                                                                        m_archive.Settings())}
{
    for (const auto& version : m_archive.Versions()) {
        m_shown.Apply(version);
        m_atRecording.Apply(version);
    }
}

Place Service::Require(TargetKind kind, int id)
{
    if (const auto place = m_shown.Find(kind, id)) return *place;
    const auto name = nlohmann::json(kind).get<std::string>();
    throw ServiceError{ErrorNumber::NotFound, "Catalogue", "There is no " + name + " " + std::to_string(id) + "."};
}

Project& Service::RequireProject(int id)
{
    if (auto* project = m_shown.FindProject(id)) return *project;
    throw ServiceError{ErrorNumber::NotFound, "Catalogue", "There is no project " + std::to_string(id) + "."};
}

void Service::Record(Version version)
{
    if (!m_archive.HasUpload(version.file))
        throw ServiceError{ErrorNumber::NotFound, "Archive", "No file '" + version.file + "' was uploaded."};
    const auto place = m_shown.Find(version.kind, version.targetId);
    version.number = (place ? LastNumber(place->GetTarget().versions) : 0) + 1;
    version.date = m_clock();
    version.user = m_user.name;
    version = m_archive.Record(std::move(version));
    m_shown.Apply(version);
    m_atRecording.Apply(version);
}

} // namespace server
