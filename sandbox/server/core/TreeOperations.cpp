#include "core/Operations.h"
#include "core/Text.h"

#include <algorithm>

namespace server
{

namespace
{

using Fill = void (*)(pugi::xml_node, const Project&, const User&);

bool PassesFilter(const Project& project, int classId, std::string_view search)
{
    return (classId == 0 || project.classId == classId) && ContainsNoCase(project.name, search);
}

Row Named(const char* idName, int id, const std::string& name)
{
    return {{idName, std::to_string(id)}, {"name", name}};
}

// A node that turns out to be empty is taken back: parents show only for what can be picked below them.
void DropWhenEmpty(pugi::xml_node node)
{
    if (!node.first_child()) node.parent().remove_child(node);
}

void FillDeliverable(pugi::xml_node stage, const Deliverable& deliverable, const User& user)
{
    auto node = AppendElement(stage, "deliverable", Named("deliverableid", deliverable.id, deliverable.name));
    for (const auto& activity : deliverable.activities)
        if (activity.IsOfferedTo(user))
            AppendElement(node, "activity", Named("activityid", activity.id, activity.name));
    if (!deliverable.IsOfferedTo(user)) DropWhenEmpty(node);
}

void FillAssignments(pugi::xml_node parent, const Project& project, const User& user)
{
    for (const auto& stage : project.stages) {
        auto node = AppendElement(parent, "stage", Named("phaseid", stage.id, stage.name));
        for (const auto& deliverable : stage.deliverables)
            FillDeliverable(node, deliverable, user);
        DropWhenEmpty(node);
    }
    DropWhenEmpty(parent);
}

void FillGateDocuments(pugi::xml_node parent, const Project& project, const User& user)
{
    for (const auto& gate : project.gates) {
        auto node = AppendElement(parent, "gate", Named("phaseid", gate.id, gate.name));
        for (const auto& document : gate.documents)
            if (document.IsOfferedTo(user))
                AppendElement(node, "gateDocument", Named("gateDocumentID", document.id, document.name));
        DropWhenEmpty(node);
    }
    DropWhenEmpty(parent);
}

// A project without related documents stays: a new one can be added to it.
void FillRelatedFiles(pugi::xml_node parent, const Project& project, const User& user)
{
    if (!Contains(project.team, user.id) && !Contains(project.alsoOfferedTo, user.id)) {
        parent.parent().remove_child(parent);
        return;
    }
    for (const auto& file : project.relatedFiles)
        AppendElement(parent, "relatedfile", Named("id", file.id, file.name));
}

template<Fill fill>
Answer Tree(Service& service, const Parameters& parameters)
{
    const int classId = parameters.Number(1);
    pugi::xml_document document;
    auto root = AppendElement(document.root(), "projects", {});
    for (const auto& project : service.Shown().projects) {
        if (!PassesFilter(project, classId, parameters.Text(2))) continue;
        const auto node =
            AppendElement(root, "project",
                          {{"pid", std::to_string(project.id)}, {"name", project.name}, {"IconSet", project.iconSet}});
        fill(node, project, service.CurrentUser());
    }
    return XmlAnswer(document);
}

} // namespace

void AddTreeOperations(OperationTable& table)
{
    table["OFFI_API.CUser.GetMyAssignmentsAsTree"] = {2, Tree<FillAssignments>};
    table["OFFI_API.CUser.GetMyProjectsRelatedFiles"] = {2, Tree<FillRelatedFiles>};
    table["OFFI_API.Cuser.GetMyGateDocumentsAsTree"] = {2, Tree<FillGateDocuments>};
}

} // namespace server
