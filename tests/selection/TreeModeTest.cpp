#include "selection/TreeMode.h"

#include <gtest/gtest.h>

namespace corvane
{

constexpr Target kAll{12, 45, 678, 907, 1201};

TEST(TreeMode, TellsItsOwnIdsOfATarget)
{
    const auto& [project, deliverable, activity, related, gateDocument] = TargetIn(TreeMode::Assignment, kAll);
    EXPECT_TRUE(project == 12 && deliverable == 45 && activity == 678 && related == 0 && gateDocument == 0);
    const Target gate = TargetIn(TreeMode::GateDocument, kAll);
    EXPECT_TRUE(gate.projectId == 12 && gate.deliverableId == 0 && gate.activityId == 0 && gate.gateDocumentId == 1201);
}

TEST(TreeMode, KnowsATargetByWhatIsPickedAndOneThatMayBeNewAlsoByItsProject)
{
    EXPECT_TRUE(IsSameTarget(TreeMode::Assignment, kAll, {0, 45, 678}));
    EXPECT_FALSE(IsSameTarget(TreeMode::Assignment, kAll, {12, 46, 678}));
    EXPECT_FALSE(IsSameTarget(TreeMode::Assignment, kAll, {12, 45, 0}));
    EXPECT_FALSE(IsSameTarget(TreeMode::GateDocument, kAll, {12, 45, 678, 907, 0}));
    EXPECT_TRUE(IsSameTarget(TreeMode::RelatedDocument, kAll, {12, 0, 0, 907}));
    EXPECT_FALSE(IsSameTarget(TreeMode::RelatedDocument, kAll, {13, 0, 0, 907}));
}

} // namespace corvane
