#include "machine/Choosing.h"

#include "machine/Files.h"

#include <algorithm>
#include <tuple>

namespace verify
{
namespace
{

namespace fs = std::filesystem;

constexpr const char* kLongest = "soak";
constexpr const char* kEnding = ".txt";

// The scenario, or those of the folder, at a place; none where nothing is.
std::vector<fs::path> At(const fs::path& place)
{
    if (fs::is_directory(place)) return FilesIn(place, kEnding);
    auto file = place;
    if (!fs::is_regular_file(file)) file += kEnding;
    return fs::is_regular_file(file) ? std::vector{fs::absolute(file).lexically_normal()} : std::vector<fs::path>{};
}

std::vector<fs::path> Named(const std::vector<fs::path>& folders, const std::string& name)
{
    for (const auto& folder : folders)
        if (auto files = At(folder / PathOf(name)); !files.empty()) return files;
    return At(PathOf(name));
}

} // namespace

Choice Choose(const std::vector<fs::path>& folders, const std::vector<std::string>& names)
{
    Choice choice;
    std::vector<fs::path> files;
    const auto add = [&](const std::vector<fs::path>& more) { files.insert(files.end(), more.begin(), more.end()); };
    if (names.empty())
        for (const auto& folder : folders)
            add(FilesIn(folder, kEnding));
    for (const auto& name : names) {
        const auto named = Named(folders, name);
        if (named.empty()) choice.unknown.push_back(name);
        add(named);
    }
    const auto rank = [&](const fs::path& file) {
        return std::tuple{file.stem() != kLongest, std::ranges::find(folders, file.parent_path()) - folders.begin(),
                          file};
    };
    std::ranges::sort(files, {}, rank);
    files.erase(std::unique(files.begin(), files.end()), files.end());
    for (const auto& file : files)
        choice.scenarios.push_back(ReadScenario(file, ReadOrEmpty(file)));
    return choice;
}

} // namespace verify
