#include "core/Dates.h"
#include "core/Operations.h"
#include "core/Rules.h"

namespace server
{

namespace
{

constexpr int kWorkflowObjectDeliverable = 1;
constexpr int kWorkflowObjectActivity = 2;
constexpr int kMayAct = 2;

std::string Text(int number) { return std::to_string(number); }

std::string LatestNumber(const Target& target)
{
    return Text(target.versions.empty() ? 0 : target.versions.back().number);
}

std::string LatestDate(const Target& target)
{
    return target.versions.empty() ? std::string{} : target.versions.back().date;
}

// What the rows of deliverables and activities have in common.
Row StateOf(const Place& place)
{
    const auto& assignment = place.GetAssignment();
    return {{"ProjectID", Text(place.project->id)},
            {"ProjectName", place.project->name},
            {"Closed", TruthText(place.project->closed)},
            {"StageName", place.stage->name},
            {"StageLocked", TruthText(place.stage->locked)},
            {"DeliverableID", Text(place.deliverable->id)},
            {"DeliverableName", place.deliverable->name},
            {"IsWebDoc", TruthText(assignment.webForm)},
            {"RoutingTypeID", Text(assignment.routingType)},
            {"AuthenticationRequired", TruthText(assignment.authenticationRequired)},
            {"EnRoute", TruthText(assignment.enRoute)},
            {"HasWorkflow", TruthText(assignment.hasWorkflow)},
            {"WorkflowState", Text(assignment.workflowState)},
            {"Version", LatestNumber(assignment)},
            {"Date", DateWithTime(LatestDate(assignment))}};
}

Answer WithOwner(Service& service, Row row, const char* nameOfName, int owner)
{
    if (owner != 0) row.emplace_back(nameOfName, service.Shown().UserName(owner));
    return RowsetAnswer({row});
}

Answer GetDeliverable(Service& service, const Parameters& parameters)
{
    const auto place = service.Require(TargetKind::Deliverable, parameters.Number(1));
    const auto& deliverable = *place.deliverable;
    auto row = StateOf(place);
    row.insert(row.end(), {{"StatusCode", Text(deliverable.statusCode)},
                           {"StatusComment", deliverable.statusNote},
                           {"TeamLeaderID", Text(place.project->leader)},
                           {"OwnerID", Text(deliverable.owner)}});
    return WithOwner(service, std::move(row), "OwnerName", deliverable.owner);
}

Answer GetActivity(Service& service, const Parameters& parameters)
{
    const auto place = service.Require(TargetKind::Activity, parameters.Number(1));
    const auto& activity = *place.activity;
    auto row = StateOf(place);
    row.insert(row.end(),
               {{"ActivityID", Text(activity.id)},
                {"ActivityName", activity.name},
                {"ActivityDescription", activity.description},
                {"ActivityStatusCode", Text(activity.statusCode)},
                {"ActivityStatusNote", activity.statusNote},
                {"ProjectTeamLeaderID", Text(place.project->leader)},
                {"DeliverableWorkflowState", Text(place.deliverable->workflowState)},
                {"WorkflowRequireActivitiesComplete", TruthText(place.deliverable->workflowRequiresActivities)},
                {"ActivityOwnerID", Text(activity.owner)}});
    return WithOwner(service, std::move(row), "ActivityOwner", activity.owner);
}

Answer CheckWorkflowPermission(Service& service, const Parameters& parameters)
{
    const int kind = parameters.Number(1);
    if (kind != kWorkflowObjectDeliverable && kind != kWorkflowObjectActivity)
        throw ServiceError{ErrorNumber::InvalidRequest, parameters.Operation(),
                           "Unknown object kind " + Text(kind) + "."};
    const auto target = kind == kWorkflowObjectDeliverable ? TargetKind::Deliverable : TargetKind::Activity;
    const auto place = service.Require(target, parameters.Number(2));
    return TextAnswer(Text(MayActInWorkflow(place.GetAssignment(), service.CurrentUser()) ? kMayAct : 0));
}

Answer GetVersionsOfActivity(Service& service, const Parameters& parameters)
{
    const auto& versions = service.Require(TargetKind::Activity, parameters.Number(1)).activity->versions;
    pugi::xml_document document;
    auto root = AppendElement(document.root(), "prj:versions", {{"xmlns:prj", "urn:halvex-com:krx:project:1"}});
    for (auto version = versions.rbegin(); version != versions.rend(); ++version)
        AppendElement(root, "prj:version",
                      {{"vtype", version == versions.rbegin() ? "latest" : "previous"},
                       {"vnum", Text(version->number)},
                       {"cdate", ShortDate(version->date)}});
    return XmlAnswer(document);
}

Answer GetGateDocument(Service& service, const Parameters& parameters)
{
    const auto place = service.Require(TargetKind::GateDocument, parameters.Number(1));
    const auto& document = *place.gateDocument;
    return WithOwner(service,
                     {{"ProjectID", Text(place.project->id)},
                      {"ProjectName", place.project->name},
                      {"ProjectClosed", TruthText(place.project->closed)},
                      {"GateName", place.gate->name},
                      {"GateDocumentID", Text(document.id)},
                      {"Name", document.name},
                      {"StatusComment", document.statusNote},
                      {"LatestVersion", LatestNumber(document)},
                      {"LatestVersionUploadedOn", DateWithTime(LatestDate(document))},
                      {"GateOwnerID", Text(document.owner)}},
                     "OwnerName", document.owner);
}

Answer UserCanUpdate(Service& service, const Parameters& parameters)
{
    constexpr int kGateDocumentObject = 3;
    if (parameters.Number(2) != kGateDocumentObject) return TextAnswer(TruthText(false));
    const auto place = service.Require(TargetKind::GateDocument, parameters.Number(1));
    return TextAnswer(TruthText(MayUpdate(*place.gateDocument, service.CurrentUser())));
}

Answer GetProject(Service& service, const Parameters& parameters)
{
    const auto& project = service.RequireProject(parameters.Number(1));
    return RowsetAnswer(
        {{{"ProjectID", Text(project.id)}, {"ProjectName", project.name}, {"Closed", TruthText(project.closed)}}});
}

Answer GetRelatedFile(Service& service, const Parameters& parameters)
{
    const auto place = service.Require(TargetKind::RelatedFile, parameters.Number(1));
    const auto& file = *place.relatedFile;
    return RowsetAnswer({{{"ProjectID", Text(place.project->id)},
                          {"ProjectName", place.project->name},
                          {"ProjectClosed", TruthText(place.project->closed)},
                          {"ID", Text(file.id)},
                          {"Name", file.name},
                          {"Description", file.description},
                          {"Author", file.author},
                          {"GroupName", file.category},
                          {"Published", TruthText(file.published)},
                          {"Version", LatestNumber(file)},
                          {"Date", DateWithTime(LatestDate(file))}}});
}

Answer GetGroups(Service& service, const Parameters& parameters)
{
    const auto& project = service.RequireProject(parameters.Number(1));
    pugi::xml_document document;
    auto root = AppendElement(document.root(), "fg:groups", {{"xmlns:fg", "urn:halvex-com:krx:filtergroups:1"}});
    for (const auto& group : project.groups)
        AppendElement(root, "fg:group", {{"name", group}});
    return XmlAnswer(document);
}

} // namespace

void AddTargetOperations(OperationTable& table)
{
    table["KRXBLL.APPLICATION.GETPROJECTDELIVERABLE"] = {1, GetDeliverable};
    table["KRXBLL.APPLICATION.GETPROJECTACTIVITY"] = {1, GetActivity};
    table["KRXBLL.APPLICATION.CHECKACTIVEWORKFLOWACTIONOWNERPERMISSIONS"] = {2, CheckWorkflowPermission};
    table["ACTIVITY_API.CACTIVITY.GETMULTIVERSIONDETAILSASXML"] = {1, GetVersionsOfActivity};
    table["KRXBLL.APPLICATION.GETPROJECTGATEDOCUMENT"] = {2, GetGateDocument};
    table["KRXBLL.APPLICATION.USERCANUPDATE"] = {2, UserCanUpdate};
    table["KRXBLL.APPLICATION.GetProject"] = {1, GetProject};
    table["KRXBLL.APPLICATION.GetProjectRelatedFile"] = {1, GetRelatedFile};
    table["KRXBLL.APPLICATION.GETPROJECTRELATEDFILE"] = {1, GetRelatedFile};
    table["RELATEDFILE_API.CFilter.GetGroups"] = {1, GetGroups};
}

} // namespace server
