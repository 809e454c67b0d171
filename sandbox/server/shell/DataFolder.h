// Where the server keeps its state while it runs.
#pragma once

#include <filesystem>

namespace server
{

// The folder that the server keeps its state in: the given one, or a fresh temporary one that is removed with this
// object.
class DataFolder
{
public:
    // Throws std::filesystem::filesystem_error when no temporary folder can be made.
    explicit DataFolder(const std::filesystem::path& chosen);
    DataFolder(const DataFolder&) = delete;
    DataFolder& operator=(const DataFolder&) = delete;
    ~DataFolder();

    [[nodiscard]] const std::filesystem::path& Path() const { return m_path; }

private:
    bool m_temporary;
    std::filesystem::path m_path;
};

} // namespace server
