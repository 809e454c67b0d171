#include "dialogs/UploadRules.h"

#include <gtest/gtest.h>
#include <tuple>

namespace corvane
{
namespace
{

constexpr auto kDeliverable = TargetKind::Deliverable;
constexpr auto kActivity = TargetKind::Activity;
constexpr std::optional<Refusal> kNoRefusal{};
constexpr std::int32_t kUser = 7;
constexpr std::int32_t kOther = 8;

// Who wants to upload: an owner of the target, or one who is not, in the team or outside it.
enum class User
{
    Owner,
    Member,
    OwnerOutside,
    Outsider
};

struct Routing
{
    std::int32_t type = 0;
    bool enRoute = false;
    std::int32_t status = 0;
};

struct Workflow
{
    std::int32_t state = 0; // of the deliverable, an activity's parent
    std::int32_t firstPermission = 0;
    std::int32_t activityState = 0;
    std::int32_t secondPermission = 0;
    bool activitiesFirst = false;
};

struct RuleCase
{
    const char* name;
    TargetKind kind;
    Routing routing;
    Workflow workflow;
    User user;
    std::optional<Refusal> expected; // nothing where the upload is allowed
};

UploadFacts FactsOf(const RuleCase& item)
{
    UploadFacts facts;
    facts.kind = item.kind;
    facts.userId = kUser;
    facts.routingTypeId = item.routing.type;
    facts.enRoute = item.routing.enRoute;
    facts.statusCode = item.routing.status;
    facts.workflowState = item.workflow.state;
    facts.firstPermission = item.workflow.firstPermission;
    facts.activityWorkflowState = item.workflow.activityState;
    facts.secondPermission = item.workflow.secondPermission;
    facts.requiresActivitiesComplete = item.workflow.activitiesFirst;
    facts.isTeamMember = item.user == User::Owner || item.user == User::Member;
    facts.ownerId = item.user == User::Owner || item.user == User::OwnerOutside ? kUser : kOther;
    return facts;
}

void Expect(const UploadFacts& facts, const std::optional<Refusal>& expected)
{
    const UploadDecision decision = DecideUpload(facts);
    EXPECT_EQ(decision.verdict, expected ? Verdict::Refused : Verdict::Allowed);
    if (expected) {
        EXPECT_EQ(decision.refusal, *expected);
    }
}

constexpr RuleCase kRuleCases[] = {
    {"OwnDeliverable", kDeliverable, {}, {}, User::Owner, kNoRefusal},
    {"OwnActivity", kActivity, {}, {}, User::Owner, kNoRefusal},

    {"Routed", kDeliverable, {2, true, 6}, {}, User::Owner, Refusal::BeingRouted},
    {"RoutedActivity", kActivity, {3, true, 6}, {}, User::Owner, Refusal::BeingRouted},
    {"RoutedAndApproved", kActivity, {2, true, 1}, {}, User::Owner, Refusal::RoutedAndApproved},
    {"NotOfARoutedType", kDeliverable, {1, true, 6}, {}, User::Owner, kNoRefusal},
    {"NotEnRoute", kDeliverable, {2, false, 6}, {}, User::Owner, kNoRefusal},
    {"CompletedButNotEnRoute", kDeliverable, {2, false, 1}, {}, User::Owner, kNoRefusal},
    {"SentBackEndsTheRules", kActivity, {2, true, 2}, {1, 2, 3, 0, true}, User::Outsider, kNoRefusal},

    {"ActivitiesFirst", kActivity, {}, {1, 2, 0, 0, true}, User::Owner, Refusal::DeliverableWorkflowRunning},
    {"ActivitiesBeforeApproval", kActivity, {}, {1, 2, 3, 0, true}, User::Owner, Refusal::DeliverableWorkflowRunning},
    {"ActivitiesBeforePermission", kActivity, {}, {1, 2, 1, 0, true}, User::Owner, Refusal::DeliverableWorkflowRunning},
    {"ActivitiesFirstOnlyWhileItRuns", kActivity, {}, {0, 0, 0, 0, true}, User::Owner, kNoRefusal},
    {"ActivitiesFirstOnlyForThem", kDeliverable, {}, {1, 2, 0, 0, true}, User::Owner, kNoRefusal},

    {"Approved", kDeliverable, {}, {3, 2}, User::Owner, Refusal::RoutedAndApproved},
    {"ApprovedActivity", kActivity, {}, {0, 0, 3}, User::Owner, Refusal::RoutedAndApproved},
    {"ApprovedForOneWhoMayActAbove", kActivity, {}, {1, 2, 3}, User::Owner, Refusal::RoutedAndApproved},
    {"ApprovedForOneWhoMayNotActAbove", kActivity, {}, {1, 1, 3}, User::Owner, kNoRefusal},
    {"BelowAnApprovedDeliverable", kActivity, {}, {3, 2}, User::Owner, kNoRefusal},
    {"ApprovedBeforeMembership", kDeliverable, {}, {3, 2}, User::Outsider, Refusal::RoutedAndApproved},

    {"NoPermission", kDeliverable, {}, {1, 1}, User::Owner, Refusal::NoWorkflowPermission},
    {"Permission", kDeliverable, {}, {1, 2}, User::Owner, kNoRefusal},
    {"NoPermissionForTheActivity", kActivity, {}, {0, 0, 1, 1}, User::Owner, Refusal::NoWorkflowPermission},
    {"PermissionAboveDoesNotHelp", kActivity, {}, {1, 2, 1, 1}, User::Owner, Refusal::NoWorkflowPermission},
    {"NoPermissionAbove", kActivity, {}, {1, 1, 1, 1}, User::Owner, kNoRefusal},
    {"PermissionForTheActivity", kActivity, {}, {1, 2, 1, 2}, User::Owner, kNoRefusal},
    {"RunningActivityEndsTheRules", kActivity, {}, {0, 0, 1, 2}, User::Outsider, kNoRefusal},
    {"PermissionBeforeMembership", kActivity, {}, {0, 2, 1, 0}, User::Outsider, Refusal::NoWorkflowPermission},

    {"OwnerOutsideTheTeam", kDeliverable, {}, {}, User::OwnerOutside, Refusal::NotTeamMember},
    {"MembershipBeforeOwnership", kActivity, {}, {}, User::Outsider, Refusal::NotTeamMember},
    {"MemberWhoIsNotTheOwner", kActivity, {}, {}, User::Member, Refusal::OwnedByOther},
    {"WorkflowReplacesMembership", kDeliverable, {}, {1, 2}, User::Outsider, kNoRefusal},
    {"WorkflowAboveReplacesMembership", kActivity, {}, {1, 0}, User::Outsider, kNoRefusal},
    {"WorkflowAboveReplacesOwnership", kActivity, {}, {1, 0}, User::Member, kNoRefusal},
};

struct OwnerCase
{
    const char* name;
    TargetKind kind;
    std::int32_t owner;
    std::optional<std::int32_t> parentOwner;
    std::int32_t leader;
    std::optional<bool> manages;
    Verdict verdict;
    std::optional<Refusal> refusal;
};

constexpr std::nullopt_t kUnasked = std::nullopt;
constexpr OwnerCase kOwnerCases[] = {
    {"Own", kDeliverable, kUser, kUnasked, kOther, kUnasked, Verdict::Allowed, kUnasked},
    {"Foreign", kDeliverable, kOther, kUnasked, kUser, true, Verdict::Refused, Refusal::OwnedByOther},
    {"Leader", kDeliverable, 0, kUnasked, kUser, kUnasked, Verdict::Allowed, kUnasked},
    {"OtherLeader", kDeliverable, 0, kUnasked, kUser - 1, true, Verdict::Refused, Refusal::NotOwned},
    {"AsksForManager", kDeliverable, 0, kUnasked, 0, kUnasked, Verdict::NeedsManageAccess, kUnasked},
    {"Manager", kDeliverable, 0, kUnasked, 0, true, Verdict::Allowed, kUnasked},
    {"NoManager", kDeliverable, 0, kUnasked, 0, false, Verdict::Refused, Refusal::NotOwned},
    {"ForeignActivity", kActivity, kOther, kUser, kUser, true, Verdict::Refused, Refusal::OwnedByOther},
    {"AsksForParent", kActivity, 0, kUnasked, kUser, true, Verdict::NeedsParentOwner, kUnasked},
    {"OwnParent", kActivity, 0, kUser, kOther, kUnasked, Verdict::Allowed, kUnasked},
    {"ForeignParent", kActivity, 0, kOther, kUser, true, Verdict::Refused, Refusal::NoOwner},
    {"LeaderOfActivity", kActivity, 0, 0, kUser, kUnasked, Verdict::Allowed, kUnasked},
    {"OtherLeaderOfActivity", kActivity, 0, 0, kOther, true, Verdict::Refused, Refusal::NoOwner},
    {"AsksForManagerOfActivity", kActivity, 0, 0, 0, kUnasked, Verdict::NeedsManageAccess, kUnasked},
    {"ManagerOfActivity", kActivity, 0, 0, 0, true, Verdict::Allowed, kUnasked},
    {"NoManagerOfActivity", kActivity, 0, 0, 0, false, Verdict::Refused, Refusal::NoOwner},
};

} // namespace

TEST(UploadRules, AllowOrRefuse)
{
    for (const RuleCase& item : kRuleCases) {
        SCOPED_TRACE(item.name);
        Expect(FactsOf(item), item.expected);
    }
}

using Change = void (*)(UploadFacts& facts);

TEST(UploadRules, GoOneByOneUntilTheFirstMatches)
{
    UploadFacts facts = FactsOf({"", kDeliverable, {2, true, 6}, {3, 0}, User::Outsider, {}});
    facts.closed = facts.stageLocked = facts.isWebDoc = facts.authenticationRequired = true;

    const std::pair<Change, Refusal> kSteps[] = {
        {[](auto&) {}, Refusal::ProjectClosed},
        {[](auto& next) { next.closed = false; }, Refusal::StageLocked},
        {[](auto& next) { next.stageLocked = false; }, Refusal::WrongDocumentType},
        {[](auto& next) { next.isWebDoc = false; }, Refusal::ReauthenticationRequired},
        {[](auto& next) { next.authenticationRequired = false; }, Refusal::BeingRouted},
        {[](auto& next) { next.enRoute = false; }, Refusal::RoutedAndApproved},
        {[](auto& next) { next.workflowState = 1; }, Refusal::NoWorkflowPermission},
        {[](auto& next) { next.workflowState = 0; }, Refusal::NotTeamMember},
        {[](auto& next) { next.isTeamMember = true; }, Refusal::OwnedByOther},
    };
    for (const auto& [change, expected] : kSteps) {
        SCOPED_TRACE(static_cast<int>(expected));
        change(facts);
        Expect(facts, expected);
    }
}

TEST(UploadRules, AskForOwnershipStepByStep)
{
    for (const OwnerCase& item : kOwnerCases) {
        SCOPED_TRACE(item.name);
        UploadFacts facts = FactsOf({"", item.kind, {}, {}, User::Owner, {}});
        facts.ownerId = item.owner;
        facts.parentOwnerId = item.parentOwner;
        facts.teamLeaderId = item.leader;
        facts.hasManageAccess = item.manages;
        const UploadDecision decision = DecideUpload(facts);
        EXPECT_EQ(decision.verdict, item.verdict);
        if (item.refusal) {
            EXPECT_EQ(decision.refusal, *item.refusal);
        }
    }
}

TEST(GateDocumentRules, PutOwnershipBeforeTheClosedProject)
{
    constexpr std::tuple<const char*, GateDocumentFacts, bool, UploadDecision> kCases[] = {
        {"Owner", {.isOwner = true}, false, {Verdict::Allowed, {}}},
        {"Updater", {.mayUpdate = true}, false, {Verdict::Allowed, {}}},
        {"MemberOfAnotherOwners",
         {.isTeamMember = true, .hasOwnerName = true},
         false,
         {Verdict::Refused, Refusal::OwnedByOther}},
        {"NoOwner", {.isTeamMember = true}, false, {Verdict::Refused, Refusal::NoOwner}},
        {"NoOwnerAndClosed",
         {.isTeamMember = true, .projectClosed = true},
         false,
         {Verdict::Refused, Refusal::NoOwner}},
        {"OwnerOfClosed", {.isOwner = true, .projectClosed = true}, false, {Verdict::Refused, Refusal::ProjectClosed}},
        {"Nobody", {.hasOwnerName = true}, true, {Verdict::Refused, Refusal::OwnedByOther}},
    };
    for (const auto& [name, facts, outsider, expected] : kCases) {
        const UploadDecision decision = DecideGateDocument(facts);
        EXPECT_EQ(IsOutsider(facts), outsider) << name;
        EXPECT_EQ(decision.verdict, expected.verdict) << name;
        if (expected.verdict == Verdict::Refused) {
            EXPECT_EQ(decision.refusal, expected.refusal) << name;
        }
    }
}

} // namespace corvane
