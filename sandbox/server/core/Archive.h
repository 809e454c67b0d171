// The data folder: uploads, recorded files and the list of all versions.
#pragma once

#include "core/Version.h"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace server
{

// A name that is safe as one path element on any file system; different names stay different.
[[nodiscard]] std::string SafeFileName(std::string_view name);

// CRC-32 as zip files use it, eight hexadecimal digits.
[[nodiscard]] std::string Crc32(std::string_view bytes);

// The data folder: uploads that wait in "transfer", recorded files in "versions", and the list of all recorded versions
// in "versions.json". Opening a folder that was used before goes on from its state. Throws std::runtime_error and
// std::filesystem::filesystem_error when the folder cannot be used.
class Archive
{
public:
    explicit Archive(std::filesystem::path folder);

    [[nodiscard]] const std::vector<Version>& Versions() const { return m_versions; }

    // The object in "settings.json", empty when there is no such file.
    [[nodiscard]] nlohmann::json Settings() const;

    void KeepUpload(std::string_view name, std::string_view bytes) const;
    [[nodiscard]] bool HasUpload(std::string_view name) const;

    // Moves the waiting upload named in version.file to its place and lists the version, whose stored name, size and
    // checksum are filled in.
    Version Record(Version version);

    // The bytes of a recorded version; nothing when it has no file.
    [[nodiscard]] std::optional<std::string> Read(const Version& version) const;

private:
    [[nodiscard]] std::filesystem::path TransferPath(std::string_view name) const;
    void WriteList() const;

    std::filesystem::path m_folder;
    std::vector<Version> m_versions;
};

} // namespace server
