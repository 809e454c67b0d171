#include "TestSite.h"

#include <set>

namespace server
{

namespace
{

nlohmann::json SmallSeed()
{
    return nlohmann::json::parse(R"({
        "users": [{"id": 1, "name": "Ann"}, {"id": 2, "name": "Bob"}],
        "classes": [],
        "projects": [{"id": 5, "name": "P", "class": 1, "iconSet": "x", "owner": "Ann",
            "stages": [{"id": 6, "name": "S", "deliverables": [
                {"id": 7, "name": "Inherits", "atRecording": {"owner": "Bob", "enRoute": true}},
                {"id": 8, "name": "Nobody's", "owner": null}]}]}]})");
}

} // namespace

TEST(Seed, TargetsTakeTheOwnerOfTheirProjectUnlessTheySayOtherwise)
{
    auto shown = ReadSeed(SmallSeed(), false);
    EXPECT_EQ(shown.Find(TargetKind::Deliverable, 7)->deliverable->owner, 1);
    EXPECT_EQ(shown.Find(TargetKind::Deliverable, 8)->deliverable->owner, 0);
    auto changed = ReadSeed(SmallSeed(), true);
    EXPECT_EQ(changed.Find(TargetKind::Deliverable, 7)->deliverable->owner, 2);
    EXPECT_TRUE(changed.Find(TargetKind::Deliverable, 7)->deliverable->enRoute);
}

TEST(Seed, GivesEveryTargetOfAKindItsOwnId)
{
    const auto catalogue = ReadSeed(nlohmann::json::parse(SeedText()), false);
    std::set<int> projects, deliverables, activities, documents, files;
    for (const auto& project : catalogue.projects) {
        EXPECT_TRUE(projects.insert(project.id).second) << project.name;
        for (const auto& stage : project.stages)
            for (const auto& deliverable : stage.deliverables) {
                EXPECT_TRUE(deliverables.insert(deliverable.id).second) << deliverable.name;
                for (const auto& activity : deliverable.activities)
                    EXPECT_TRUE(activities.insert(activity.id).second) << activity.name;
            }
        for (const auto& gate : project.gates)
            for (const auto& document : gate.documents)
                EXPECT_TRUE(documents.insert(document.id).second) << document.name;
        for (const auto& file : project.relatedFiles)
            EXPECT_TRUE(files.insert(file.id).second) << file.name;
    }
}

} // namespace server
