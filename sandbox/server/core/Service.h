// What operations and pages work on.
#pragma once

#include "core/Archive.h"
#include "core/Catalogue.h"

#include <functional>
#include <nlohmann/json.hpp>
#include <string>
#include <utility>
#include <vector>

namespace server
{

struct Settings
{
    long long maxFileUploadSize = 0;
    bool publishByDefault = false;
    std::vector<std::pair<std::string, std::string>> configuration; // token and value, as clients fetch them
};

// Local time as "yyyy-MM-ddTHH:mm:ss".
using Clock = std::function<std::string()>;

// The state that operations and pages work on: catalogue, settings, recorded versions and the user it all is for. Not
// thread-safe.
class Service
{
public:
    // An empty user name takes the seed's first user. Throws std::invalid_argument for an unknown one, naming all
    // users.
    Service(const nlohmann::json& seed, std::string_view userName, Archive archive, Clock clock);

    [[nodiscard]] const User& CurrentUser() const { return m_user; }
    [[nodiscard]] const Settings& GetSettings() const { return m_settings; }
    [[nodiscard]] Catalogue& Shown() { return m_shown; }
    [[nodiscard]] Catalogue& AtRecording() { return m_atRecording; }
    [[nodiscard]] const Archive& Files() const { return m_archive; }

    // Both throw ServiceError (not found) when there is none of that id.
    [[nodiscard]] Place Require(TargetKind kind, int id);
    [[nodiscard]] Project& RequireProject(int id);

    // Completes the version (number, date, user), stores it and brings both catalogues up to date. The uploaded file
    // named in it must be waiting: ServiceError otherwise.
    void Record(Version version);

private:
    Catalogue m_shown;
    Catalogue m_atRecording;
    User m_user;
    Archive m_archive;
    Clock m_clock;
    Settings m_settings;
};

} // namespace server
