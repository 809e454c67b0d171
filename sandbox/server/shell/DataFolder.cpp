#include "shell/DataFolder.h"

#include <cerrno>
#include <cstdlib>
#include <string>
#include <system_error>

namespace server
{

namespace fs = std::filesystem;

DataFolder::DataFolder(fs::path chosen) : m_temporary{chosen.empty()}, m_path{std::move(chosen)}
{
    if (!m_temporary) return;
    auto pattern = (fs::temp_directory_path() / "corvane-server-XXXXXX").string();
    if (!::mkdtemp(pattern.data()))
        throw fs::filesystem_error{"temporary folder", pattern, std::error_code{errno, std::generic_category()}};
    m_path = pattern;
}

DataFolder::~DataFolder()
{
    std::error_code ignored;
    if (m_temporary) fs::remove_all(m_path, ignored);
}

} // namespace server
