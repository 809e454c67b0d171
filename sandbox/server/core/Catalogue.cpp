#include "core/Catalogue.h"

#include <algorithm>

namespace server
{

namespace
{

std::optional<Place> FindAssignment(Project& project, TargetKind kind, int id)
{
    for (auto& stage : project.stages)
        for (auto& deliverable : stage.deliverables) {
            const Place place{.project = &project, .stage = &stage, .deliverable = &deliverable};
            if (kind == TargetKind::Deliverable && deliverable.id == id) return place;
            if (kind != TargetKind::Activity) continue;
            const auto activity = std::ranges::find(deliverable.activities, id, &Activity::id);
            if (activity == deliverable.activities.end()) continue;
            auto found = place;
            found.activity = &*activity;
            return found;
        }
    return std::nullopt;
}

std::optional<Place> FindGateDocument(Project& project, int id)
{
    for (auto& gate : project.gates) {
        const auto document = std::ranges::find(gate.documents, id, &GateDocument::id);
        if (document != gate.documents.end())
            return Place{.project = &project, .gate = &gate, .gateDocument = &*document};
    }
    return std::nullopt;
}

std::optional<Place> FindRelatedFile(Project& project, int id)
{
    const auto file = std::ranges::find(project.relatedFiles, id, &RelatedFile::id);
    if (file == project.relatedFiles.end()) return std::nullopt;
    return Place{.project = &project, .relatedFile = &*file};
}

std::optional<Place> FindIn(Project& project, TargetKind kind, int id)
{
    switch (kind) {
    case TargetKind::GateDocument:
        return FindGateDocument(project, id);
    case TargetKind::RelatedFile:
        return FindRelatedFile(project, id);
    default:
        return FindAssignment(project, kind, id);
    }
}

void TakeDetails(const Place& place, const Version& version)
{
    if (auto* file = place.relatedFile) {
        file->name = version.target;
        file->description = version.description;
        file->author = version.author;
        file->category = version.category;
        file->published = version.published;
    } else if (place.deliverable) {
        place.GetAssignment().statusCode = version.status;
        place.GetAssignment().statusNote = version.notes;
    } else {
        place.gateDocument->statusNote = version.notes;
    }
}

} // namespace

bool Contains(const std::vector<int>& ids, int id) { return std::ranges::find(ids, id) != ids.end(); }

bool Target::IsOfferedTo(const User& user) const { return owner == user.id || Contains(alsoOfferedTo, user.id); }

Target& Place::GetTarget() const
{
    if (gateDocument) return *gateDocument;
    if (relatedFile) return *relatedFile;
    return GetAssignment();
}

Assignment& Place::GetAssignment() const
{
    if (activity) return *activity;
    return *deliverable;
}

const User* Catalogue::FindUser(std::string_view name) const
{
    const auto found = std::ranges::find(users, name, &User::name);
    return found == users.end() ? nullptr : &*found;
}

std::string Catalogue::UserName(int id) const
{
    const auto found = std::ranges::find(users, id, &User::id);
    return found == users.end() ? std::string{} : found->name;
}

Project* Catalogue::FindProject(int id)
{
    const auto found = std::ranges::find(projects, id, &Project::id);
    return found == projects.end() ? nullptr : &*found;
}

std::optional<Place> Catalogue::Find(TargetKind kind, int id)
{
    for (auto& project : projects)
        if (const auto place = FindIn(project, kind, id)) return place;
    return std::nullopt;
}

void Catalogue::Apply(const Version& version)
{
    auto place = Find(version.kind, version.targetId);
    if (!place && version.kind == TargetKind::RelatedFile)
        if (auto* project = FindProject(version.projectId)) {
            project->relatedFiles.emplace_back().id = version.targetId;
            place = FindIn(*project, version.kind, version.targetId);
        }
    if (!place) return;
    TakeDetails(*place, version);
    place->GetTarget().versions.push_back(version);
}

int Catalogue::NextRelatedId() const
{
    int highest = 0;
    for (const auto& project : projects)
        for (const auto& file : project.relatedFiles)
            highest = std::max(highest, file.id);
    return highest + 1;
}

} // namespace server
