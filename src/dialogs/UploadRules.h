// The rules that allow or refuse the upload of a new version of a deliverable or activity.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace corvane
{

enum class TargetKind
{
    Deliverable,
    Activity
};

// States and kinds as the server numbers them.
inline constexpr std::int32_t kStatusCompleted = 1;
inline constexpr std::int32_t kStatusRouted = 6;
inline constexpr std::int32_t kWorkflowRunning = 1;
inline constexpr std::int32_t kWorkflowApproved = 3;
inline constexpr std::int32_t kMayActInWorkflow = 2;
inline constexpr std::int32_t kFirstRoutedType = 2; // routing types from here on route documents for approval

// Everything the rules look at. Facts that cost a server call of their own are fetched only when a rule asks for them.
struct UploadFacts
{
    TargetKind kind = TargetKind::Deliverable;
    bool closed = false;
    bool stageLocked = false;
    bool isWebDoc = false;
    bool authenticationRequired = false;
    bool enRoute = false;
    std::int32_t routingTypeId = 0;
    std::int32_t statusCode = 0;
    std::int32_t workflowState = 0;         // of the deliverable, or of an activity's parent deliverable
    std::int32_t activityWorkflowState = 0; // of the activity itself
    bool requiresActivitiesComplete = false;
    std::int32_t firstPermission = 0;  // of the user in the deliverable's workflow
    std::int32_t secondPermission = 0; // of the user in the activity's workflow
    bool isTeamMember = false;
    std::int32_t userId = 0;
    std::int32_t ownerId = 0; // 0 for none
    std::int32_t teamLeaderId = 0;
    std::optional<std::int32_t> parentOwnerId; // owner of an activity's parent deliverable
    std::optional<bool> hasManageAccess;       // the user's role and rights allow managing unowned targets
};

enum class Refusal
{
    ProjectClosed,
    StageLocked,
    WrongDocumentType,
    ReauthenticationRequired,
    BeingRouted,
    RoutedAndApproved,
    DeliverableWorkflowRunning,
    NoWorkflowPermission,
    NotTeamMember,
    OwnedByOther,
    NotOwned,            // the user does not own an unowned deliverable
    NoOwner,             // an unowned activity or gate document
    OutsideTheTeam,      // neither member, owner nor updater of a gate document
    RelatedProjectClosed // the closed project of a related document
};

enum class Verdict
{
    Allowed,
    Refused,
    NeedsParentOwner, // parentOwnerId has to be fetched first
    NeedsManageAccess // hasManageAccess has to be fetched first
};

struct UploadDecision
{
    Verdict verdict = Verdict::Allowed;
    Refusal refusal{}; // where refused
};

// The first rule that matches decides.
[[nodiscard]] UploadDecision DecideUpload(const UploadFacts& facts);

// What the rules for a gate document look at.
struct GateDocumentFacts
{
    bool isTeamMember = false;
    bool mayUpdate = false;
    bool isOwner = false;
    bool hasOwnerName = false;
    bool projectClosed = false;
};

// Neither member, owner nor updater: such a user may not upload to the gate document at all.
[[nodiscard]] constexpr bool IsOutsider(const GateDocumentFacts& facts) noexcept
{
    return !facts.isTeamMember && !facts.isOwner && !facts.mayUpdate;
}

// Ownership comes before the closed project.
[[nodiscard]] UploadDecision DecideGateDocument(const GateDocumentFacts& facts);

} // namespace corvane
