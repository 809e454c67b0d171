// Files by their UTF-8 names, read and replaced beside other programs that do the same.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace server
{

// Paths from and to UTF-8, whatever the system's own encoding is; as text they have slashes.
[[nodiscard]] std::filesystem::path PathOf(std::string_view utf8);
[[nodiscard]] std::string Utf8Of(const std::filesystem::path& path);

// The whole file; nothing when there is none. One that another program holds is waited for, for a second: on Windows a
// file that is being replaced, or looked at by a scanner, cannot be opened. Throws std::runtime_error then.
[[nodiscard]] std::optional<std::string> ReadIfThere(const std::filesystem::path& path);

// Writes the whole file. Throws std::runtime_error.
void WriteFile(const std::filesystem::path& path, std::string_view bytes);

// Gives the file another name, which may be taken by a file that it replaces; waits for one that is held as above.
// Throws std::filesystem::filesystem_error.
void Rename(const std::filesystem::path& from, const std::filesystem::path& to);

} // namespace server
