#include "dialogs/UploadRules.h"

namespace corvane
{
namespace
{

constexpr UploadDecision kAllowed{Verdict::Allowed, {}};
constexpr UploadDecision Refused(Refusal refusal) { return {Verdict::Refused, refusal}; }

// A rule's word: refuse, allow without looking further, or nothing.
using RuleResult = std::optional<UploadDecision>;

bool IsDeliverable(const UploadFacts& facts) { return facts.kind == TargetKind::Deliverable; }
bool WorkflowRuns(const UploadFacts& facts) { return facts.workflowState == kWorkflowRunning; }
bool ActivityWorkflowRuns(const UploadFacts& facts)
{
    return !IsDeliverable(facts) && facts.activityWorkflowState == kWorkflowRunning;
}

RuleResult TestState(const UploadFacts& facts)
{
    if (facts.closed) return Refused(Refusal::ProjectClosed);
    if (facts.stageLocked) return Refused(Refusal::StageLocked);
    if (facts.isWebDoc) return Refused(Refusal::WrongDocumentType);
    if (facts.authenticationRequired) return Refused(Refusal::ReauthenticationRequired);
    return std::nullopt;
}

RuleResult TestRouting(const UploadFacts& facts)
{
    if (facts.routingTypeId < kFirstRoutedType || !facts.enRoute) return std::nullopt;
    if (facts.statusCode == kStatusRouted) return Refused(Refusal::BeingRouted);
    if (facts.statusCode == kStatusCompleted) return Refused(Refusal::RoutedAndApproved);
    return kAllowed;
}

bool IsApproved(const UploadFacts& facts)
{
    if (IsDeliverable(facts)) return facts.workflowState == kWorkflowApproved;
    const bool waitsForParent = WorkflowRuns(facts) && facts.firstPermission != kMayActInWorkflow;
    return facts.activityWorkflowState == kWorkflowApproved && !waitsForParent;
}

bool LacksWorkflowPermission(const UploadFacts& facts)
{
    const bool mayActAbove = facts.firstPermission == kMayActInWorkflow;
    if (IsDeliverable(facts)) return WorkflowRuns(facts) && !mayActAbove;
    return ActivityWorkflowRuns(facts) && facts.secondPermission != kMayActInWorkflow &&
           (!WorkflowRuns(facts) || mayActAbove);
}

RuleResult TestWorkflow(const UploadFacts& facts)
{
    if (!IsDeliverable(facts) && WorkflowRuns(facts) && facts.requiresActivitiesComplete)
        return Refused(Refusal::DeliverableWorkflowRunning);
    if (IsApproved(facts)) return Refused(Refusal::RoutedAndApproved);
    if (LacksWorkflowPermission(facts)) return Refused(Refusal::NoWorkflowPermission);
    if (ActivityWorkflowRuns(facts)) return kAllowed;
    return std::nullopt;
}

// Nobody owns the target and nobody leads the team: only a manager may upload.
UploadDecision TestManageAccess(const UploadFacts& facts, Refusal refusal)
{
    if (!facts.hasManageAccess) return {Verdict::NeedsManageAccess, {}};
    return *facts.hasManageAccess ? kAllowed : Refused(refusal);
}

UploadDecision TestTeamLeader(const UploadFacts& facts, Refusal refusal)
{
    if (facts.teamLeaderId == facts.userId) return kAllowed;
    return facts.teamLeaderId != 0 ? Refused(refusal) : TestManageAccess(facts, refusal);
}

UploadDecision TestOwnership(const UploadFacts& facts)
{
    if (facts.ownerId == facts.userId) return kAllowed;
    if (facts.ownerId != 0) return Refused(Refusal::OwnedByOther);
    if (IsDeliverable(facts)) return TestTeamLeader(facts, Refusal::NotOwned);
    if (!facts.parentOwnerId) return {Verdict::NeedsParentOwner, {}};
    if (*facts.parentOwnerId == facts.userId) return kAllowed;
    return *facts.parentOwnerId != 0 ? Refused(Refusal::NoOwner) : TestTeamLeader(facts, Refusal::NoOwner);
}

} // namespace

UploadDecision DecideUpload(const UploadFacts& facts)
{
    for (const auto rule : {&TestState, &TestRouting, &TestWorkflow}) {
        if (const RuleResult result = rule(facts)) return *result;
    }
    // A running workflow puts its own permissions in place of membership and ownership.
    if (WorkflowRuns(facts)) return kAllowed;
    return facts.isTeamMember ? TestOwnership(facts) : Refused(Refusal::NotTeamMember);
}

UploadDecision DecideGateDocument(const GateDocumentFacts& facts)
{
    if (!facts.isOwner && !facts.mayUpdate)
        return Refused(facts.hasOwnerName ? Refusal::OwnedByOther : Refusal::NoOwner);
    return facts.projectClosed ? Refused(Refusal::ProjectClosed) : kAllowed;
}

} // namespace corvane
