#include "core/Archive.h"
#include "core/Files.h"
#include "shell/DataFolder.h"

#include <fstream>
#include <future>
#include <gtest/gtest.h>
#include <set>
#ifdef _WIN32
#include <windows.h>
#endif

namespace server
{

TEST(Storage, FileNamesStayInTheirFolderAndDiffer)
{
    const std::string longName(300, 'x');
    std::string wide;
    while (wide.size() < longName.size())
        wide += "日";
    const std::string names[] = {
        "plan.pptx",    "../plan.pptx", "..",         ".",  "",         "a/b", "a\\b",      "a%2Fb", "\"q\"",
        longName + "1", longName + "2", "Größe.pptx", wide, "x" + wide, "nul", "Com1.pptx", "plan. "};
    const DataFolder folder{""};
    std::set<std::string> safe;
    for (const auto& name : names) {
        const auto made = SafeFileName(name);
        EXPECT_EQ(made.find_first_of("/\\\""), std::string::npos) << name;
        EXPECT_FALSE(made.starts_with('.')) << name;
        EXPECT_TRUE(!made.empty() && made.size() < 200) << name;
        EXPECT_TRUE(safe.insert(made).second) << name;
        EXPECT_NO_THROW((void)nlohmann::json(made).dump()) << name << " was cut within a letter";
        WriteFile(folder.Path() / PathOf(made), name);
    }
    for (const auto& file : std::filesystem::directory_iterator{folder.Path()})
        EXPECT_EQ(safe.erase(Utf8Of(file.path().filename())), 1U) << file;
    EXPECT_TRUE(safe.empty()) << *safe.begin() << " is not in the folder";
    EXPECT_EQ(SafeFileName("Größe.pptx"), "Größe.pptx");
}

#ifdef _WIN32
TEST(Storage, WaitsForAFileThatAnotherProgramHolds)
{
    const DataFolder folder{""};
    const auto list = folder.Path() / "list";
    const auto held = [&] {
        const HANDLE file = ::CreateFileW(list.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
        return std::async(std::launch::async, [file] { return ::Sleep(100), ::CloseHandle(file); });
    };
    WriteFile(list, "old");
    WriteFile(folder.Path() / "fresh", "new");
    auto hold = held();
    EXPECT_EQ(ReadIfThere(list), "old");
    hold = held();
    Rename(folder.Path() / "fresh", list);
    EXPECT_EQ(ReadIfThere(list), "new");
}
#endif

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
