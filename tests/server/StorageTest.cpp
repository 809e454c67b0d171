#include "core/Archive.h"
#include "shell/DataFolder.h"

#include <fstream>
#include <gtest/gtest.h>
#include <set>

namespace server
{

TEST(Storage, ChecksumIsTheOneOfZipFiles)
{
    EXPECT_EQ(Crc32("123456789"), "cbf43926");
    EXPECT_EQ(Crc32(""), "00000000");
}

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

TEST(Storage, KeepsAnUploadUnderAnyName)
{
    const DataFolder folder{""};
    const Archive archive{folder.Path()};
    archive.KeepUpload("../../escape \"me\"/now.pptx", "bytes");
    EXPECT_TRUE(archive.HasUpload("../../escape \"me\"/now.pptx"));
    EXPECT_FALSE(archive.HasUpload("now.pptx"));
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator{folder.Path() / "transfer"}, {}), 1);
}

TEST(Storage, SaysWhenAListCannotBeReadInsteadOfStartingAnew)
{
    const DataFolder folder{""};
    std::ofstream{folder.Path() / "versions.json"} << "[{\"kind\":";
    EXPECT_ANY_THROW(Archive{folder.Path()});
}

TEST(Storage, RemovesItsOwnFolderButNotAGivenOne)
{
    std::filesystem::path own;
    const DataFolder outer{""};
    const auto given = outer.Path() / "given";
    std::filesystem::create_directory(given);
    {
        const DataFolder temporary{""};
        const DataFolder chosen{given};
        own = temporary.Path();
        EXPECT_TRUE(std::filesystem::is_directory(own));
    }
    EXPECT_FALSE(std::filesystem::exists(own));
    EXPECT_TRUE(std::filesystem::exists(given));
}

} // namespace server
