#include "core/Archive.h"
#include "shell/DataFolder.h"

#include <fstream>
#include <gtest/gtest.h>
#include <set>

namespace server
{

TEST(Storage, FileNamesStayInTheirFolderAndDiffer)
{
    const std::string longName(300, 'x');
    const std::string names[] = {"plan.pptx", "../plan.pptx", "..",           ".",         "", "a/b", "a\\b", "a%2Fb",
                                 "\"q\"",     longName + "1", longName + "2", "Größe.pptx"};
    std::set<std::string> safe;
    for (const auto& name : names) {
        const auto made = SafeFileName(name);
        EXPECT_EQ(made.find_first_of("/\\\""), std::string::npos) << name;
        EXPECT_FALSE(made.starts_with('.')) << name;
        EXPECT_TRUE(!made.empty() && made.size() < 200) << name;
        EXPECT_TRUE(safe.insert(made).second) << name;
    }
    EXPECT_EQ(SafeFileName("Größe.pptx"), "Größe.pptx");
}

TEST(Storage, SaysWhenAListCannotBeReadInsteadOfStartingAnew)
{
    const DataFolder folder{""};
    std::ofstream{folder.Path() / "versions.json"} << "[{\"kind\":";
    EXPECT_ANY_THROW(Archive{folder.Path()});
}

TEST(Storage, RemovesItsOwnFolderButNotAGivenOne)
{
    const auto folderOf = [](const std::filesystem::path& given) { return DataFolder{given}.Path(); };
    EXPECT_FALSE(std::filesystem::exists(folderOf("")));
    const DataFolder given{""};
    EXPECT_TRUE(std::filesystem::exists(folderOf(given.Path())));
}

} // namespace server
