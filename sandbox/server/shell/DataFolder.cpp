#include "shell/DataFolder.h"

#include <random>
#include <string>
#include <system_error>

namespace server
{

namespace fs = std::filesystem;

namespace
{

fs::path NewTemporaryFolder()
{
    std::random_device random;
    fs::path folder;
    do
        folder = fs::temp_directory_path() / ("corvane-server-" + std::to_string(random()));
    while (!fs::create_directory(folder));
    fs::permissions(folder, fs::perms::owner_all);
    return folder;
}

} // namespace

DataFolder::DataFolder(const fs::path& chosen)
    : m_temporary{chosen.empty()}, m_path{m_temporary ? NewTemporaryFolder() : chosen}
{}

DataFolder::~DataFolder()
{
    std::error_code ignored;
    if (m_temporary) fs::remove_all(m_path, ignored);
}

} // namespace server
