#include "CaseName.h"
#include "TestSite.h"

namespace server
{

struct SaveCase
{
    const char* name;
    const char* user;
    const char* type;
    int project;
    int id;
    int expected; // number of the error document, 0 when the version is recorded
};

constexpr const char* kDana = "Dana Reyes";
constexpr const char* kDeliverable = "CDeliverable";
constexpr const char* kActivity = "CActivity";
constexpr const char* kGateDocument = "CGateDocument";

constexpr int kNotOwner = -2147170653;
constexpr int kClosed = -2147170652;
constexpr int kLocked = -2147170651;
constexpr int kRouted = -2147170650;
constexpr int kApproved = -2147170649;
constexpr int kNotPossible = -2147170648;
constexpr int kAuthentication = -2147170647;

class Refusal : public testing::TestWithParam<SaveCase>
{};

TEST_P(Refusal, HasTheNumberOfItsRule)
{
    const auto& item = GetParam();
    TestSite site{item.user};
    EXPECT_EQ(ErrorNumberOf(site.Save(item.type, item.project, item.id)), item.expected);
    EXPECT_EQ(site.Recorded().size(), item.expected == 0 ? 1U : 0U);
}

constexpr SaveCase kCases[] = {
    {"ClosedProject", kDana, kDeliverable, 13, 1301, kClosed},
    {"ClosedProjectActivity", kDana, kActivity, 13, 1302, kClosed},
    {"LockedStage", kDana, kDeliverable, 14, 1401, kLocked},
    {"OnlineForm", kDana, kDeliverable, 14, 1403, kNotPossible},
    {"OnlineFormActivity", kDana, kActivity, 14, 1404, kNotPossible},
    {"Authentication", kDana, kDeliverable, 14, 1405, kAuthentication},
    {"BeingRouted", kDana, kDeliverable, 15, 1501, kRouted},
    {"SentBack", kDana, kDeliverable, 15, 1503, 0},
    {"SentBackEvenToOthers", "Noor Haddad", kActivity, 15, 1504, 0},
    {"RoutedAndApproved", kDana, kActivity, 15, 1506, kApproved},
    {"Completed", kDana, kDeliverable, 12, 46, 0},

    {"ActivitiesFirst", kDana, kActivity, 16, 1602, kNotPossible},
    {"ActivitiesFirstDoesNotBindTheDeliverable", kDana, kDeliverable, 16, 1601, 0},
    {"ApprovedDeliverable", kDana, kDeliverable, 16, 1603, kApproved},
    {"BelowAnApprovedDeliverable", kDana, kActivity, 16, 1604, 0},
    {"YourTurn", kDana, kDeliverable, 16, 1605, 0},
    {"SomeoneElsesTurn", kDana, kDeliverable, 16, 1606, kNotPossible},
    {"TurnOfOneWhoOwnsNothing", "Tomas Lind", kDeliverable, 16, 1606, 0},
    {"ApprovedActivity", kDana, kActivity, 16, 1612, kApproved},
    {"YourTurnInTheActivity", kDana, kActivity, 16, 1613, 0},
    {"SomeoneElsesTurnInTheActivity", kDana, kActivity, 16, 1614, kNotPossible},
    {"ApprovedButNotLookedAt", kDana, kActivity, 16, 1622, 0},
    {"RunningButNotLookedAt", kDana, kActivity, 16, 1623, 0},
    {"RunsOnlyAbove", "Noor Haddad", kActivity, 16, 1624, 0},
    {"ApprovedAndLookedAt", kDana, kActivity, 16, 1632, kApproved},
    {"RunningAndLookedAt", kDana, kActivity, 16, 1633, kNotPossible},

    {"OutsideTheTeam", kDana, kDeliverable, 17, 1701, kNotOwner},
    {"OwnedByAnother", kDana, kDeliverable, 18, 1801, kNotOwner},
    {"NoOwnerButTeamLeader", "Tomas Lind", kDeliverable, 18, 1803, 0},
    {"NoOwnerAndAnotherLeads", kDana, kDeliverable, 18, 1803, kNotOwner},
    {"NoOwnerAndAnotherLeadsTheManager", "Maria Kowalski", kDeliverable, 18, 1803, kNotOwner},
    {"NoLeaderButManager", "Maria Kowalski", kDeliverable, 19, 1901, 0},
    {"NoLeaderRoleWithoutAccess", "Igor Petrov", kDeliverable, 19, 1901, kNotOwner},
    {"NoLeaderAndNoRole", kDana, kDeliverable, 19, 1901, kNotOwner},
    {"ActivityOwnedByAnother", kDana, kActivity, 18, 1802, kNotOwner},
    {"ActivityBelowOnesOwn", kDana, kActivity, 18, 1806, 0},
    {"ActivityBelowAnothers", "Tomas Lind", kActivity, 18, 1806, kNotOwner},
    {"ActivityWithoutAnyOwner", "Tomas Lind", kActivity, 18, 1804, 0},
    {"ActivityOfNobodyManager", "Maria Kowalski", kActivity, 19, 1902, 0},
    {"ActivityOfNobodyWithoutAccess", "Igor Petrov", kActivity, 19, 1902, kNotOwner},

    {"MeanwhileOwner", kDana, kDeliverable, 20, 2001, kNotOwner},
    {"MeanwhileActivityOwner", kDana, kActivity, 20, 2002, kNotOwner},
    {"MeanwhileRouting", kDana, kActivity, 20, 2004, kRouted},
    {"MeanwhileApproval", kDana, kDeliverable, 20, 2005, kApproved},
    {"MeanwhileSignature", kDana, kDeliverable, 20, 2007, kAuthentication},
    {"MeanwhileForm", kDana, kDeliverable, 20, 2009, kNotPossible},
    {"MeanwhileStage", kDana, kActivity, 20, 2012, kLocked},
    {"MeanwhileProject", kDana, kDeliverable, 21, 2101, kClosed},
    {"MeanwhileGateDocumentOwner", kDana, kGateDocument, 20, 2021, kNotOwner},
    {"MeanwhileGateDocumentProject", kDana, kGateDocument, 21, 2103, kClosed},

    {"GateDocumentOwner", kDana, kGateDocument, 12, 1201, 0},
    {"GateDocumentOfAnother", kDana, kGateDocument, 12, 1202, kNotOwner},
    {"GateDocumentOfNobody", kDana, kGateDocument, 12, 1203, kNotOwner},
    {"GateDocumentUpdater", "Ülle Tamm", kGateDocument, 12, 1204, 0},
    {"GateDocumentInClosedProject", kDana, kGateDocument, 13, 1303, kClosed},
    {"GateDocumentOfNobodyInClosedProject", kDana, kGateDocument, 13, 1304, kNotOwner},
    {"GateDocumentOwnerOutsideTheTeam", "Noor Haddad", kGateDocument, 17, 1706, 0},
    {"ReplyError", kDana, kDeliverable, 22, 2207, 287},
    {"TargetOfAnotherProject", kDana, kDeliverable, 13, 45, static_cast<int>(ErrorNumber::InvalidRequest)},
};

INSTANTIATE_TEST_SUITE_P(AllRules, Refusal, testing::ValuesIn(kCases), CaseName{});

TEST(ChangesMeanwhile, AreNotShownBeforeTheSave)
{
    TestSite site;
    EXPECT_EQ(site.Field("KRXBLL.APPLICATION.GETPROJECTDELIVERABLE", {"2001"}, "OwnerName"), "Dana Reyes");
    EXPECT_EQ(site.Field("KRXBLL.APPLICATION.GETPROJECTACTIVITY", {"2012"}, "StageLocked"), "False");
    EXPECT_EQ(site.Field("KRXBLL.APPLICATION.GetProject", {"21"}, "Closed"), "False");
}

} // namespace server
