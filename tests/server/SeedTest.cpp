#include "TestSite.h"

#include <set>

namespace server
{

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
