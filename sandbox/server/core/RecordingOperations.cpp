#include "core/Operations.h"
#include "core/Rules.h"

namespace server
{

namespace
{

std::string WithLineFeeds(std::string text)
{
    for (auto at = text.find("\r\n"); at != std::string::npos; at = text.find("\r\n", at))
        text.erase(at, 1);
    return text;
}

void Allow(std::optional<ErrorNumber> refusal, const Parameters& parameters)
{
    if (refusal) throw ServiceError{*refusal, parameters.Operation(), Describe(*refusal)};
}

// The recording fails as a whole when the server's own event handler raises an error.
void RaiseReplyError(const Reply& reply, const Parameters& parameters)
{
    if (reply.errorNumber != 0)
        throw ServiceError{reply.errorNumber, parameters.Operation(), "The server's event handler has failed."};
}

// A cancelling reply carries a message; nothing is recorded then.
bool Cancels(const Reply& reply)
{
    constexpr std::string_view kPrefix = "CancelMessage:";
    return reply.text.starts_with(kPrefix) && reply.text.size() > kPrefix.size();
}

Answer RecordAndReply(Service& service, Version version, const Reply& reply)
{
    if (!Cancels(reply)) service.Record(std::move(version));
    return TextAnswer(reply.text);
}

Version NewVersion(TargetKind kind, const Place& place)
{
    Version version;
    version.kind = kind;
    version.targetId = place.GetTarget().id;
    version.target = place.GetTarget().name;
    version.projectId = place.project->id;
    version.project = place.project->name;
    return version;
}

// The state that the recording meets, which may differ from the one shown before.
Place RequireAtRecording(Service& service, TargetKind kind, int id)
{
    (void)service.Require(kind, id);
    return *service.AtRecording().Find(kind, id);
}

// Parameters: host, project, target, upload name, author, comments, publish, status, notes.
template<TargetKind kind>
Answer UploadAndUpdate(Service& service, const Parameters& parameters)
{
    const auto place = RequireAtRecording(service, kind, parameters.Number(3));
    if (place.project->id != parameters.Number(2))
        throw ServiceError{ErrorNumber::InvalidRequest, parameters.Operation(),
                           "The target does not belong to project " + parameters.Text(2) + "."};
    const auto refuse = kind == TargetKind::GateDocument ? RefuseGateDocument : RefuseAssignment;
    Allow(refuse(place, service.CurrentUser()), parameters);
    const Reply reply = place.GetTarget().reply;
    RaiseReplyError(reply, parameters);

    auto version = NewVersion(kind, place);
    version.host = parameters.Text(1);
    version.file = parameters.Text(4);
    version.author = parameters.Text(5);
    version.comments = WithLineFeeds(parameters.Text(6));
    version.published = parameters.Truth(7);
    version.status = parameters.Number(8);
    version.notes = WithLineFeeds(parameters.Text(9));
    return RecordAndReply(service, std::move(version), reply);
}

// What both related-document operations carry from parameter 2 on: upload name, name, author, category, description,
// publish.
Version WithDetails(Version version, const Parameters& parameters)
{
    version.file = parameters.Text(2);
    version.target = parameters.Text(3);
    version.author = parameters.Text(4);
    version.category = parameters.Text(5);
    version.description = WithLineFeeds(parameters.Text(6));
    version.published = parameters.Truth(7);
    return version;
}

Answer CreateRelatedFile(Service& service, const Parameters& parameters)
{
    const auto& project = service.RequireProject(parameters.Number(1));
    Allow(RefuseRelatedFile(*service.AtRecording().FindProject(project.id), service.CurrentUser()), parameters);
    Version version;
    version.kind = TargetKind::RelatedFile;
    version.targetId = service.Shown().NextRelatedId();
    version.projectId = project.id;
    version.project = project.name;
    service.Record(WithDetails(version, parameters));
    return TextAnswer(std::to_string(version.targetId));
}

Answer UploadRelatedFile(Service& service, const Parameters& parameters)
{
    const auto place = RequireAtRecording(service, TargetKind::RelatedFile, parameters.Number(1));
    Allow(RefuseRelatedFile(*place.project, service.CurrentUser()), parameters);
    const Reply reply = place.GetTarget().reply;
    RaiseReplyError(reply, parameters);
    return RecordAndReply(service, WithDetails(NewVersion(TargetKind::RelatedFile, place), parameters), reply);
}

} // namespace

void AddRecordingOperations(OperationTable& table)
{
    table["OFFI_API.CDeliverable.UploadAndUpdate"] = {9, UploadAndUpdate<TargetKind::Deliverable>};
    table["OFFI_API.CActivity.UploadAndUpdate"] = {9, UploadAndUpdate<TargetKind::Activity>};
    table["OFFI_API.CGateDocument.UploadAndUpdate"] = {9, UploadAndUpdate<TargetKind::GateDocument>};
    table["KRXBLL.Application.CreateProjectRelatedFile2"] = {7, CreateRelatedFile};
    table["KRXBLL.Application.UploadProjectRelatedFile2"] = {7, UploadRelatedFile};
}

} // namespace server
