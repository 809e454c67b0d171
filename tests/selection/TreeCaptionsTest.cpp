#include "selection/TreeCaptions.h"

#include <gtest/gtest.h>

namespace corvane
{

TEST(TreeKinds, TellOfAnEmptyTreeAndOfWhatIsNoTargetByTheMode)
{
    EXPECT_STREQ(TreeKindOf(TreeMode::RelatedDocument).emptyText, L"There are no projects.");
    EXPECT_STREQ(TreeKindOf(TreeMode::GateDocument).emptyText, L"There are no assignments.");
    EXPECT_TRUE(TreeKindOf(TreeMode::RelatedDocument).refusalIsCritical);
}

TEST(TreeCaptions, TellOfAnActiveFilterOnce)
{
    EXPECT_EQ(WithFilterMark(L"My Projects"), L"My Projects (Filter Active)");
    EXPECT_EQ(WithFilterMark(L"My Projects (Filter Active)"), L"My Projects (Filter Active)");
}

} // namespace corvane
