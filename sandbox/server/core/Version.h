// A recorded version, as it is kept and listed.
#pragma once

#include <cstdint>
#include <nlohmann/json.hpp>
#include <string>

namespace server
{

enum class TargetKind
{
    Deliverable,
    Activity,
    GateDocument,
    RelatedFile,
};

NLOHMANN_JSON_SERIALIZE_ENUM(TargetKind, {{TargetKind::Deliverable, "deliverable"},
                                          {TargetKind::Activity, "activity"},
                                          {TargetKind::GateDocument, "gate document"},
                                          {TargetKind::RelatedFile, "related document"}})

// One recorded version of a target. Dates are local time, "yyyy-MM-ddTHH:mm:ss".
struct Version
{
    TargetKind kind = TargetKind::Deliverable;
    int targetId = 0;
    std::string target;
    int projectId = 0;
    std::string project;
    int number = 0;
    std::string date;
    std::string user;
    std::string host;
    std::string author;
    std::string comments;
    bool published = false;
    int status = 0;
    std::string notes;
    std::string description; // this and the category: related documents only
    std::string category;
    std::string file;     // the name it was uploaded under
    std::string storedAs; // below the data folder; empty for a version that has no file
    std::uint64_t size = 0;
    std::string crc32;
};

void to_json(nlohmann::ordered_json& json, const Version& version);
void from_json(const nlohmann::ordered_json& json, Version& version);

} // namespace server
