#include "core/Rules.h"

#include <algorithm>

namespace server
{

namespace
{

// Accepted or refused without looking any further; empty means that the next group of rules decides.
struct Ruling
{
    std::optional<ErrorNumber> refusal;
};
using Decision = std::optional<Ruling>;

Decision Refuse(ErrorNumber number) { return Ruling{number}; }

Decision Accept() { return Ruling{}; }

Decision DecideByState(const Place& place)
{
    const auto& assignment = place.GetAssignment();
    if (place.project->closed) return Refuse(ErrorNumber::ProjectClosed);
    if (place.stage->locked) return Refuse(ErrorNumber::StageLocked);
    if (assignment.webForm) return Refuse(ErrorNumber::UploadNotPossible);
    if (assignment.authenticationRequired) return Refuse(ErrorNumber::AuthenticationRequired);
    return std::nullopt;
}

Decision DecideByRouting(const Assignment& assignment)
{
    if (assignment.routingType < 2 || !assignment.enRoute) return std::nullopt;
    if (assignment.statusCode == kStatusRouted) return Refuse(ErrorNumber::BeingRouted);
    return assignment.statusCode == kStatusCompleted ? Refuse(ErrorNumber::RoutedAndApproved) : Accept();
}

Decision DecideByDeliverableWorkflow(const Deliverable& deliverable, const User& user)
{
    if (deliverable.workflowState == kWorkflowApproved) return Refuse(ErrorNumber::RoutedAndApproved);
    if (deliverable.workflowState != kWorkflowRunning) return std::nullopt;
    return MayActInWorkflow(deliverable, user) ? Accept() : Refuse(ErrorNumber::UploadNotPossible);
}

// An activity waits for its deliverable's workflow first; while that is another user's turn, the activity's own
// workflow is not looked at.
Decision DecideByActivityWorkflow(const Place& place, const User& user)
{
    const auto& deliverable = *place.deliverable;
    const auto& activity = *place.activity;
    const bool parentRuns = deliverable.workflowState == kWorkflowRunning;
    const bool ownCounts = !parentRuns || MayActInWorkflow(deliverable, user);
    if (parentRuns && deliverable.workflowRequiresActivities) return Refuse(ErrorNumber::UploadNotPossible);
    if (activity.workflowState == kWorkflowApproved && ownCounts) return Refuse(ErrorNumber::RoutedAndApproved);
    if (activity.workflowState == kWorkflowRunning) {
        const bool refused = ownCounts && !MayActInWorkflow(activity, user);
        return refused ? Refuse(ErrorNumber::UploadNotPossible) : Accept();
    }
    return parentRuns ? Accept() : std::nullopt;
}

// Who may save to a target without an owner: the team leader; without a leader whoever may manage the project.
bool StandsInForOwner(const Project& project, const User& user)
{
    return project.leader != 0 ? project.leader == user.id : MayManage(project, user);
}

bool CountsAsOwner(const Place& place, const User& user)
{
    const int owner = place.GetAssignment().owner;
    if (owner != 0) return owner == user.id;
    if (place.activity && place.deliverable->owner != 0) return place.deliverable->owner == user.id;
    return StandsInForOwner(*place.project, user);
}

} // namespace

std::optional<ErrorNumber> RefuseAssignment(const Place& place, const User& user)
{
    auto decision = DecideByState(place);
    if (!decision) decision = DecideByRouting(place.GetAssignment());
    if (!decision)
        decision = place.activity ? DecideByActivityWorkflow(place, user)
                                  : DecideByDeliverableWorkflow(*place.deliverable, user);
    if (decision) return decision->refusal;
    if (!Contains(place.project->team, user.id) || !CountsAsOwner(place, user)) return ErrorNumber::NotOwner;
    return std::nullopt;
}

std::optional<ErrorNumber> RefuseGateDocument(const Place& place, const User& user)
{
    if (place.gateDocument->owner != user.id && !MayUpdate(*place.gateDocument, user)) return ErrorNumber::NotOwner;
    if (place.project->closed) return ErrorNumber::ProjectClosed;
    return std::nullopt;
}

std::optional<ErrorNumber> RefuseRelatedFile(const Project& project, const User& user)
{
    if (!MayUploadRelatedFiles(user)) return ErrorNumber::AccessDenied;
    if (project.closed) return ErrorNumber::RelatedProjectClosed;
    return std::nullopt;
}

const char* Describe(ErrorNumber number)
{
    switch (number) {
    case ErrorNumber::NotOwner:
        return "The user is not the owner.";
    case ErrorNumber::ProjectClosed:
    case ErrorNumber::RelatedProjectClosed:
        return "The project is closed.";
    case ErrorNumber::StageLocked:
        return "The stage is locked.";
    case ErrorNumber::BeingRouted:
        return "The document is currently being routed.";
    case ErrorNumber::RoutedAndApproved:
        return "The document was routed and approved.";
    case ErrorNumber::UploadNotPossible:
        return "The target does not take an uploaded document now.";
    case ErrorNumber::AuthenticationRequired:
        return "The document requires re-authentication.";
    case ErrorNumber::AccessDenied:
        return "The user has no right to upload related documents.";
    default:
        return "The request cannot be carried out.";
    }
}

bool MayActInWorkflow(const Assignment& assignment, const User& user)
{
    return Contains(assignment.workflowActors, user.id);
}

bool MayUpdate(const GateDocument& document, const User& user) { return Contains(document.updaters, user.id); }

bool MayManage(const Project& project, const User& user)
{
    return std::ranges::find(user.roles, "1") != user.roles.end() && Contains(project.managers, user.id);
}

bool MayUploadRelatedFiles(const User& user) { return user.rights.find("RU") != std::string::npos; }

} // namespace server
