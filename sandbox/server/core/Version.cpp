#include "core/Version.h"

namespace server
{

namespace
{

// The one list of names and members, for reading and writing.
template<class AnyVersion, class Visit>
void EachField(AnyVersion& version, Visit visit)
{
    visit("kind", version.kind);
    visit("id", version.targetId);
    visit("name", version.target);
    visit("projectId", version.projectId);
    visit("project", version.project);
    visit("version", version.number);
    visit("date", version.date);
    visit("user", version.user);
    visit("host", version.host);
    visit("author", version.author);
    visit("comments", version.comments);
    visit("published", version.published);
    visit("status", version.status);
    visit("notes", version.notes);
    visit("description", version.description);
    visit("category", version.category);
    visit("file", version.file);
    visit("storedAs", version.storedAs);
    visit("size", version.size);
    visit("crc32", version.crc32);
}

} // namespace

void to_json(nlohmann::ordered_json& json, const Version& version)
{
    json = nlohmann::ordered_json::object();
    EachField(version, [&](const char* name, const auto& member) { json[name] = member; });
}

void from_json(const nlohmann::ordered_json& json, Version& version)
{
    EachField(version, [&](const char* name, auto& member) { json.at(name).get_to(member); });
}

} // namespace server
