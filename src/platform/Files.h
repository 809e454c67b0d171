// Files and folders as the add-in needs them. Paths of files may have any length.
#pragma once

#include "platform/Owners.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>

namespace corvane
{

// The user's temporary folder in its long form, and the user's Documents folder and desktop; without a closing
// backslash. All throw the system's error where there is none.
[[nodiscard]] std::wstring TemporaryFolder();
[[nodiscard]] std::wstring DocumentsFolder();
[[nodiscard]] std::wstring DesktopFolder();

// The folder of the user's settings that roam (%APPDATA%), without a closing backslash; empty where there is none.
[[nodiscard]] std::wstring ApplicationDataFolder();

// A fresh GUID as text, upper case, without braces. Throws the system's error.
[[nodiscard]] std::wstring NewGuidText();

// folder\base.extension, numbered ("base (2).extension", ...) until no file has the name. The extension may be empty
// and comes without its point.
[[nodiscard]] std::wstring UnusedPath(const std::wstring& folder, const std::wstring& base,
                                      const std::wstring& extension);

// Whether there is a file or folder of that name; false also for what cannot be looked at.
[[nodiscard]] bool FileExists(const std::wstring& path) noexcept;

// False for a file that is marked read-only or that this user may not write.
[[nodiscard]] bool MayWriteFile(const std::wstring& path) noexcept;

// The file's length in bytes; nothing when it cannot be told.
[[nodiscard]] std::optional<std::uint64_t> FileLength(const std::wstring& path) noexcept;

// Times of files, in units of 100 ns: as the system splits one, that of now, and when a file was last written; nothing
// when it cannot be told.
[[nodiscard]] constexpr std::uint64_t FileTimeOf(const FILETIME& time) noexcept
{
    return (std::uint64_t{time.dwHighDateTime} << 32U) | time.dwLowDateTime;
}
[[nodiscard]] std::uint64_t FileTimeNow() noexcept;
[[nodiscard]] std::optional<std::uint64_t> LastWriteTime(const std::wstring& path) noexcept;

// Reads the file from that place on, letting others read, write and delete it meanwhile; returns how much was read.
std::size_t ReadFile(const std::wstring& path, std::span<std::byte> into, std::uint64_t from = 0) noexcept;

// Writes a new file or replaces one; throws Error.
void WriteFile(const std::wstring& path, std::span<const std::byte> bytes);

// Copies a file, replacing one that is there; false when it cannot.
bool CopyWholeFile(const std::wstring& from, const std::wstring& to) noexcept;

// The path in the system's 8.3 form; the path itself where it has none.
[[nodiscard]] std::wstring ShortPath(const std::wstring& path);

// Owns a file in the temporary folder under a fresh GUID name; the file is deleted with its owner.
class TemporaryFile
{
public:
    // Chooses the name only; the caller makes the file. The extension comes without its point. Throws like
    // TemporaryFolder.
    explicit TemporaryFile(const std::wstring& extension);
    TemporaryFile(TemporaryFile&& other) noexcept : m_path{std::exchange(other.m_path, {})} {}
    TemporaryFile& operator=(TemporaryFile other) noexcept
    {
        m_path.swap(other.m_path);
        return *this;
    }
    ~TemporaryFile();

    [[nodiscard]] const std::wstring& Path() const noexcept { return m_path; }

private:
    std::wstring m_path;
};

} // namespace corvane
