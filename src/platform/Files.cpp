#include "platform/Files.h"

#include "platform/HResult.h"
#include "platform/LongPath.h"

#include <shlobj.h>

#include <algorithm>
#include <array>

namespace corvane
{
namespace
{

constexpr std::size_t kPathBuffer = 1024;
constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

UniqueFile OpenFile(const std::wstring& path, DWORD access, DWORD disposition) noexcept
{
    const HANDLE file = ::CreateFileW(AsLongPath(path).c_str(), access, kShareAll, nullptr, disposition,
                                      FILE_ATTRIBUTE_NORMAL, nullptr);
    return UniqueFile{file == INVALID_HANDLE_VALUE ? nullptr : file};
}

std::wstring ShellFolder(int id, const wchar_t* source)
{
    std::array<wchar_t, MAX_PATH> path{};
    Check(::SHGetFolderPathW(nullptr, id | CSIDL_FLAG_CREATE, nullptr, SHGFP_TYPE_CURRENT, path.data()), source);
    return path.data();
}

} // namespace

std::wstring TemporaryFolder()
{
    std::array<wchar_t, kPathBuffer> path{};
    CheckWin32(::GetTempPathW(static_cast<DWORD>(path.size()), path.data()) != 0, L"TemporaryFolder");
    std::array<wchar_t, kPathBuffer> longPath{};
    const DWORD length = ::GetLongPathNameW(path.data(), longPath.data(), static_cast<DWORD>(longPath.size()));
    std::wstring folder = length == 0 || length >= longPath.size() ? path.data() : longPath.data();
    while (!folder.empty() && folder.back() == L'\\')
        folder.pop_back();
    return folder;
}

std::wstring DocumentsFolder() { return ShellFolder(CSIDL_PERSONAL, L"DocumentsFolder"); }

std::wstring DesktopFolder() { return ShellFolder(CSIDL_DESKTOPDIRECTORY, L"DesktopFolder"); }

std::wstring ApplicationDataFolder()
{
    std::wstring folder(::GetEnvironmentVariableW(L"APPDATA", nullptr, 0), L'\0');
    folder.resize(::GetEnvironmentVariableW(L"APPDATA", folder.data(), static_cast<DWORD>(folder.size())));
    return folder;
}

std::wstring NewGuidText()
{
    GUID guid{};
    Check(::CoCreateGuid(&guid), L"NewGuidText");
    return GuidText(guid).substr(1, 36);
}

bool FileExists(const std::wstring& path) noexcept
{
    return ::GetFileAttributesW(AsLongPath(path).c_str()) != INVALID_FILE_ATTRIBUTES;
}

std::wstring UnusedPath(const std::wstring& folder, const std::wstring& base, const std::wstring& extension)
{
    const std::wstring stem = folder + L"\\" + base;
    const std::wstring ending = extension.empty() ? L"" : L"." + extension;
    std::wstring path = stem + ending;
    for (int number = 2; FileExists(path); ++number) {
        path = stem;
        path.append(L" (").append(std::to_wstring(number)).append(L")").append(ending);
    }
    return path;
}

bool MayWriteFile(const std::wstring& path) noexcept
{
    const DWORD attributes = ::GetFileAttributesW(AsLongPath(path).c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES || (attributes & FILE_ATTRIBUTE_READONLY) != 0) return false;
    // The host may hold the file without sharing: only a refusal of rights counts.
    return static_cast<bool>(OpenFile(path, GENERIC_WRITE, OPEN_EXISTING)) || ::GetLastError() != ERROR_ACCESS_DENIED;
}

std::optional<std::uint64_t> FileLength(const std::wstring& path) noexcept
{
    const UniqueFile file = OpenFile(path, GENERIC_READ, OPEN_EXISTING);
    LARGE_INTEGER length{};
    if (!file || !::GetFileSizeEx(file.Get(), &length)) return std::nullopt;
    return static_cast<std::uint64_t>(length.QuadPart);
}

std::uint64_t FileTimeNow() noexcept
{
    FILETIME now{};
    ::GetSystemTimeAsFileTime(&now);
    return FileTimeOf(now);
}

std::optional<std::uint64_t> LastWriteTime(const std::wstring& path) noexcept
{
    WIN32_FILE_ATTRIBUTE_DATA facts{};
    if (!::GetFileAttributesExW(AsLongPath(path).c_str(), GetFileExInfoStandard, &facts)) return std::nullopt;
    return FileTimeOf(facts.ftLastWriteTime);
}

std::size_t ReadFile(const std::wstring& path, std::span<std::byte> into, std::uint64_t from) noexcept
{
    const UniqueFile file = OpenFile(path, GENERIC_READ, OPEN_EXISTING);
    LARGE_INTEGER place{};
    place.QuadPart = static_cast<LONGLONG>(from);
    const bool isReady = file && ::SetFilePointerEx(file.Get(), place, nullptr, FILE_BEGIN) != FALSE;
    std::size_t total = 0;
    while (isReady && total < into.size()) {
        constexpr std::size_t kStep = std::size_t{1} << 26U;
        DWORD read = 0;
        const auto step = static_cast<DWORD>(std::min(kStep, into.size() - total));
        if (!::ReadFile(file.Get(), into.data() + total, step, &read, nullptr) || read == 0) break;
        total += read;
    }
    return total;
}

void WriteFile(const std::wstring& path, std::span<const std::byte> bytes)
{
    const UniqueFile file = OpenFile(path, GENERIC_WRITE, CREATE_ALWAYS);
    CheckWin32(static_cast<bool>(file), L"WriteFile");
    DWORD written = 0;
    CheckWin32(::WriteFile(file.Get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr) != FALSE,
               L"WriteFile");
}

bool CopyWholeFile(const std::wstring& from, const std::wstring& to) noexcept
{
    return ::CopyFileW(AsLongPath(from).c_str(), AsLongPath(to).c_str(), FALSE) != FALSE;
}

std::wstring ShortPath(const std::wstring& path)
{
    std::array<wchar_t, kPathBuffer> shortPath{};
    const DWORD length = ::GetShortPathNameW(path.c_str(), shortPath.data(), static_cast<DWORD>(shortPath.size()));
    return length == 0 || length >= shortPath.size() ? path : shortPath.data();
}

TemporaryFile::TemporaryFile(const std::wstring& extension)
    : m_path{UnusedPath(TemporaryFolder(), NewGuidText(), extension)}
{}

TemporaryFile::~TemporaryFile()
{
    if (!m_path.empty()) ::DeleteFileW(AsLongPath(m_path).c_str());
}

} // namespace corvane
