// Files and folders, by names in UTF-8.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace verify
{

[[nodiscard]] std::filesystem::path PathOf(std::string_view utf8);
[[nodiscard]] std::string Utf8Of(const std::filesystem::path& path);

// With a slash between the folders, on every system.
[[nodiscard]] std::string SlashedUtf8Of(const std::filesystem::path& path);

[[nodiscard]] std::optional<std::string> ReadIfThere(const std::filesystem::path& file);
[[nodiscard]] std::string ReadOrEmpty(const std::filesystem::path& file);
void WriteBytes(const std::filesystem::path& file, std::string_view bytes); // throws std::runtime_error

// The files right in a folder whose name ends so, in their order; none where there is no folder.
[[nodiscard]] std::vector<std::filesystem::path> FilesIn(const std::filesystem::path& folder, std::string_view ending);

// Those in a folder and below it.
[[nodiscard]] std::vector<std::filesystem::path> FilesBelow(const std::filesystem::path& folder,
                                                            std::string_view ending);

// Whether it is named as the add-in names its temporary files: by a GUID.
[[nodiscard]] bool HasGuidName(const std::filesystem::path& file);

} // namespace verify
