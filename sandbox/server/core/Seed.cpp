#include "core/Seed.h"

#include <array>
#include <cstdio>
#include <stdexcept>

namespace server
{

namespace
{

using Json = nlohmann::json;

void ApplyChanges(Json& json)
{
    if (json.is_object() && json.contains("atRecording")) json.merge_patch(Json(json["atRecording"]));
    if (!json.is_structured()) return;
    for (auto& child : json)
        ApplyChanges(child);
}

// A project holds its targets; what it says about the owner counts for each target that names none itself.
class ProjectReader
{
public:
    ProjectReader(const Catalogue& catalogue, const Json& json) : m_catalogue{catalogue}, m_json{json} {}

    [[nodiscard]] Project Read();

private:
    [[nodiscard]] int UserId(const Json& name) const;
    [[nodiscard]] std::vector<int> UserIds(const Json& json, const char* member) const;
    [[nodiscard]] std::vector<Version> History(const Json& json) const;
    void ReadTarget(const Json& json, Target& target) const;
    void ReadAssignment(const Json& json, Assignment& assignment) const;
    [[nodiscard]] Stage ReadStage(const Json& json) const;
    [[nodiscard]] Deliverable ReadDeliverable(const Json& json) const;
    [[nodiscard]] Gate ReadGate(const Json& json) const;
    [[nodiscard]] RelatedFile ReadRelatedFile(const Json& json) const;

    const Catalogue& m_catalogue;
    const Json& m_json;
    int m_owner = 0;
};

template<class Visit>
void Each(const Json& json, const char* member, Visit visit)
{
    if (json.contains(member))
        for (const auto& item : json.at(member))
            visit(item);
}

int ProjectReader::UserId(const Json& name) const
{
    if (name.is_null()) return 0;
    const auto* user = m_catalogue.FindUser(name.get<std::string>());
    if (!user) throw std::runtime_error{"The seed names an unknown user: " + name.get<std::string>()};
    return user->id;
}

std::vector<int> ProjectReader::UserIds(const Json& json, const char* member) const
{
    std::vector<int> ids;
    Each(json, member, [&](const Json& name) { ids.push_back(UserId(name)); });
    return ids;
}

std::vector<Version> ProjectReader::History(const Json& json) const
{
    std::vector<Version> versions;
    Each(json, "history", [&](const Json& item) {
        Version version;
        version.number = static_cast<int>(versions.size()) + 1;
        version.date = item.at("date");
        version.author = item.at("author");
        version.comments = item.value("comments", "");
        version.published = item.value("published", false);
        versions.push_back(std::move(version));
    });
    return versions;
}

void ProjectReader::ReadTarget(const Json& json, Target& target) const
{
    target.id = json.at("id");
    target.name = json.at("name");
    target.owner = json.contains("owner") ? UserId(json["owner"]) : m_owner;
    target.alsoOfferedTo = UserIds(json, "alsoOfferedTo");
    target.versions = History(json);
    target.reply.text = json.value("reply", "");
    target.reply.errorNumber = json.value("replyError", 0);
}

void ProjectReader::ReadAssignment(const Json& json, Assignment& assignment) const
{
    ReadTarget(json, assignment);
    assignment.statusCode = json.value("statusCode", assignment.statusCode);
    assignment.statusNote = json.value("statusNote", "");
    assignment.routingType = json.value("routingType", assignment.routingType);
    assignment.enRoute = json.value("enRoute", false);
    assignment.webForm = json.value("webForm", false);
    assignment.authenticationRequired = json.value("authenticationRequired", false);
    assignment.hasWorkflow = json.value("hasWorkflow", false);
    assignment.workflowState = json.value("workflowState", 0);
    assignment.workflowActors = UserIds(json, "workflowActors");
}

Deliverable ProjectReader::ReadDeliverable(const Json& json) const
{
    Deliverable deliverable;
    ReadAssignment(json, deliverable);
    deliverable.workflowRequiresActivities = json.value("workflowRequiresActivities", false);
    Each(json, "activities", [&](const Json& item) {
        auto& activity = deliverable.activities.emplace_back();
        ReadAssignment(item, activity);
        activity.description = item.value("description", "");
    });
    return deliverable;
}

Stage ProjectReader::ReadStage(const Json& json) const
{
    Stage stage{
        .id = json.at("id"), .name = json.at("name"), .locked = json.value("locked", false), .deliverables = {}};
    Each(json, "deliverables", [&](const Json& item) { stage.deliverables.push_back(ReadDeliverable(item)); });
    return stage;
}

Gate ProjectReader::ReadGate(const Json& json) const
{
    Gate gate{.id = json.at("id"), .name = json.at("name"), .documents = {}};
    Each(json, "documents", [&](const Json& item) {
        auto& document = gate.documents.emplace_back();
        ReadTarget(item, document);
        document.statusNote = item.value("statusNote", "");
        document.updaters = UserIds(item, "updaters");
    });
    return gate;
}

RelatedFile ProjectReader::ReadRelatedFile(const Json& json) const
{
    RelatedFile file;
    ReadTarget(json, file);
    file.description = json.value("description", "");
    file.author = json.value("author", "");
    file.category = json.value("category", "");
    file.published = json.value("published", false);
    return file;
}

Project ProjectReader::Read()
{
    Project project;
    project.id = m_json.at("id");
    project.name = m_json.at("name");
    project.classId = m_json.at("class");
    project.iconSet = m_json.at("iconSet");
    project.closed = m_json.value("closed", false);
    project.leader = UserId(m_json.value("leader", Json{}));
    project.team = UserIds(m_json, "team");
    project.managers = UserIds(m_json, "managers");
    project.alsoOfferedTo = UserIds(m_json, "alsoOfferedTo");
    project.groups = m_json.value("groups", std::vector<std::string>{"[Default]"});
    m_owner = UserId(m_json.value("owner", Json{}));
    Each(m_json, "stages", [&](const Json& item) { project.stages.push_back(ReadStage(item)); });
    Each(m_json, "gates", [&](const Json& item) { project.gates.push_back(ReadGate(item)); });
    Each(m_json, "relatedFiles", [&](const Json& item) { project.relatedFiles.push_back(ReadRelatedFile(item)); });
    return project;
}

Project ReadProject(const Catalogue& catalogue, const Json& json) { return ProjectReader{catalogue, json}.Read(); }

// Copies of one project: number n of `count` is called "<name> nnn" and numbered firstId + n, its parts ten times that.
void ReadCrowd(const Json& crowd, Catalogue& catalogue)
{
    const int count = crowd.at("count");
    const int firstId = crowd.at("firstId");
    const std::vector<int> classes = crowd.at("classes");
    for (int n = 0; n < count; ++n) {
        Project project = ReadProject(catalogue, crowd.at("project"));
        std::array<char, 16> number{};
        std::snprintf(number.data(), number.size(), " %03d", n + 1);
        project.id = firstId + n;
        project.name += number.data();
        project.classId = classes[static_cast<std::size_t>(n) % classes.size()];
        int part = project.id * 10;
        for (auto& stage : project.stages) {
            stage.id = ++part;
            for (auto& deliverable : stage.deliverables)
                deliverable.id = ++part;
        }
        for (auto& gate : project.gates) {
            gate.id = ++part;
            for (auto& document : gate.documents)
                document.id = ++part;
        }
        catalogue.projects.push_back(std::move(project));
    }
}

} // namespace

Catalogue ReadSeed(Json seed, bool changes)
{
    if (changes) ApplyChanges(seed);
    Catalogue catalogue;
    for (const auto& item : seed.at("users"))
        catalogue.users.push_back({.id = item.at("id"),
                                   .name = item.at("name"),
                                   .email = item.value("email", ""),
                                   .rights = item.value("rights", ""),
                                   .roles = item.value("roles", std::vector<std::string>{})});
    for (const auto& item : seed.at("classes"))
        catalogue.classes.push_back({.id = item.at("id"), .name = item.at("name")});
    for (const auto& item : seed.at("projects"))
        catalogue.projects.push_back(ReadProject(catalogue, item));
    if (seed.contains("crowd")) ReadCrowd(seed["crowd"], catalogue);
    return catalogue;
}

} // namespace server
