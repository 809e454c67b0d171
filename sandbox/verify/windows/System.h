// What the PC tells about itself and its programs.
#pragma once

#include <filesystem>
#include <string>

namespace verify
{

[[nodiscard]] bool IsWine() noexcept;

// The system's own number, which GetVersionEx hides, and whether it is Wine that says so.
[[nodiscard]] std::string SystemName();

// The version in a program's or a library's resources as four numbers; empty where there is none.
[[nodiscard]] std::string FileVersionOf(const std::filesystem::path& file);

// Which versions of MSXML the system's folder holds, with their files' versions.
[[nodiscard]] std::string MsxmlVersions();

} // namespace verify
