#include "selection/NodeKey.h"

#include <array>
#include <gtest/gtest.h>
#include <vector>

namespace corvane
{
namespace
{

constexpr Target kAll{12, 45, 678, 907, 1201};

struct KeyCase
{
    const char* name;
    TreeMode mode;
    std::vector<const wchar_t*> ids; // from the project down
    const wchar_t* key;
    std::array<std::int32_t, 5> target; // project, deliverable, activity, related document, gate document
};

// The levels' keys below each other, as the tree makes them.
std::wstring KeyOf(TreeMode mode, const std::vector<const wchar_t*>& ids)
{
    std::wstring key;
    for (std::size_t level = 0; level < ids.size(); ++level)
        key = NodeKey(key, TreeKindOf(mode).levels[level], ids[level]);
    return key;
}

} // namespace

TEST(NodeKey, GivesBackTheIdsOfATarget)
{
    const KeyCase kCases[] = {
        {"Deliverable", TreeMode::Assignment, {L"12", L"3", L"45"}, L"p12s3d45", {12, 45}},
        {"Activity", TreeMode::Assignment, {L"12", L"3", L"45", L"678"}, L"p12s3d45a678", {12, 45, 678}},
        {"NewRelatedDocument", TreeMode::RelatedDocument, {L"12", L"0"}, L"p12rd0", {12}},
        {"RelatedDocument", TreeMode::RelatedDocument, {L"12", L"907"}, L"p12rd907", {12, 0, 0, 907}},
        {"GateDocument", TreeMode::GateDocument, {L"12", L"3", L"45"}, L"p12g3gd45", {12, 0, 0, 0, 45}},
        {"LargestId", TreeMode::RelatedDocument, {L"1", L"2147483647"}, L"p1rd2147483647", {1, 0, 0, 2147483647}},
    };
    for (const KeyCase& item : kCases) {
        SCOPED_TRACE(item.name);
        EXPECT_EQ(KeyOf(item.mode, item.ids), item.key);
        const auto target = TargetOfKey(item.mode, item.key);
        ASSERT_TRUE(target.has_value());
        const auto& [project, deliverable, activity, relatedDoc, gateDocument] = *target;
        EXPECT_EQ((std::array{project, deliverable, activity, relatedDoc, gateDocument}), item.target);
    }
}

TEST(NodeKey, IsNoTargetWithoutTheMarkerOfItsMode)
{
    for (const auto* key : {L"", L"p12", L"p12s3"})
        EXPECT_FALSE(TargetOfKey(TreeMode::Assignment, key)) << testing::PrintToString(key);
    for (const auto* key : {L"", L"p12", L"p12s3d45"})
        EXPECT_FALSE(TargetOfKey(TreeMode::RelatedDocument, key)) << testing::PrintToString(key);
    for (const auto* key : {L"", L"p12", L"p12g3", L"p12rd4"})
        EXPECT_FALSE(TargetOfKey(TreeMode::GateDocument, key)) << testing::PrintToString(key);
}

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
