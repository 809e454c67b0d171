#include "selection/TreeMode.h"

#include <gtest/gtest.h>
#include <tuple>

namespace corvane
{
namespace
{

using Ids = std::tuple<std::int32_t, std::int32_t, std::int32_t, std::int32_t, std::int32_t>;

Ids IdsIn(TreeMode mode)
{
    const auto& [project, deliverable, activity, related, gateDocument] = TargetIn(mode, {12, 45, 678, 907, 1201});
    return {project, deliverable, activity, related, gateDocument};
}

} // namespace

TEST(TreeMode, TellsItsOwnIdsOfATarget)
{
    EXPECT_EQ(IdsIn(TreeMode::Assignment), (Ids{12, 45, 678, 0, 0}));
    EXPECT_EQ(IdsIn(TreeMode::RelatedDocument), (Ids{12, 0, 0, 907, 0}));
    EXPECT_EQ(IdsIn(TreeMode::GateDocument), (Ids{12, 0, 0, 0, 1201}));
}

TEST(TreeMode, KnowsATargetByWhatIsPickedAndOneThatMayBeNewAlsoByItsProject)
{
    const Target target{12, 45, 678, 907, 1201};
    const auto isSame = [&](TreeMode mode, const Target& other) { return IsSameTarget(mode, target, other); };
    EXPECT_TRUE(isSame(TreeMode::Assignment, {0, 45, 678, 0, 0}));
    EXPECT_FALSE(isSame(TreeMode::Assignment, {12, 46, 678, 907, 1201}));
    EXPECT_FALSE(isSame(TreeMode::Assignment, {12, 45, 0, 907, 1201}));
    EXPECT_TRUE(isSame(TreeMode::GateDocument, {0, 0, 0, 0, 1201}));
    EXPECT_FALSE(isSame(TreeMode::GateDocument, {12, 45, 678, 907, 0}));
    EXPECT_TRUE(isSame(TreeMode::RelatedDocument, {12, 0, 0, 907, 0}));
    EXPECT_FALSE(isSame(TreeMode::RelatedDocument, {13, 45, 678, 907, 1201}));
    EXPECT_FALSE(isSame(TreeMode::RelatedDocument, {12, 45, 678, 0, 1201}));
}

} // namespace corvane
