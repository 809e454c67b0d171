#include "documents/Files.h"

#include <algorithm>
#include <chrono>
#include <cwctype>
#include <thread>

#include "app/Console.h"
#include "automation/AutomationError.h"

namespace host
{
namespace
{

constexpr std::chrono::milliseconds kGrowthTime{2500};

std::wstring SystemReason(DWORD error)
{
    wchar_t text[512] = L"";
    const DWORD length = ::FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, error, 0,
                                          text, static_cast<DWORD>(std::size(text)), nullptr);
    std::wstring reason{text, length};
    while (!reason.empty() && std::iswspace(reason.back()))
        reason.pop_back();
    return reason.empty() ? L"error " + std::to_wstring(error) : reason;
}

[[noreturn]] void Fail(const wchar_t* what, const std::wstring& path)
{
    throw AutomationError{E_FAIL, std::wstring{what} + L" " + path + L": " + SystemReason(::GetLastError())};
}

void WriteAll(HANDLE file, std::string_view bytes, const std::wstring& path)
{
    DWORD written = 0;
    if (!::WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr) ||
        written != bytes.size())
        Fail(L"PowerPoint could not save", path);
}

void CompleteLater(std::wstring path, std::string bytes)
{
    std::thread{[path = std::move(path), bytes = std::move(bytes)] {
        std::this_thread::sleep_for(kGrowthTime);
        const FileHandle file{::CreateFileW(path.c_str(), GENERIC_WRITE,
                                            FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                            OPEN_EXISTING, 0, nullptr)};
        DWORD written = 0;
        if (!file.IsOpen() ||
            !::WriteFile(file.Get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr))
            PrintError(L"the growing file could not be completed: " + path);
    }}.detach();
}

} // namespace

SaveFault SaveFaultNamed(std::string_view name)
{
    if (name == "empty") return SaveFault::Empty;
    if (name == "zeros") return SaveFault::Zeros;
    if (name == "growing") return SaveFault::Growing;
    if (name == "error") return SaveFault::Error;
    return SaveFault::None;
}

std::string ReadWholeFile(const std::wstring& path)
{
    const FileHandle file{::CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                        OPEN_EXISTING, 0, nullptr)};
    LARGE_INTEGER size{};
    if (!file.IsOpen() || !::GetFileSizeEx(file.Get(), &size)) Fail(L"PowerPoint could not open", path);
    std::string bytes(static_cast<std::size_t>(size.QuadPart), '\0');
    DWORD read = 0;
    if (!::ReadFile(file.Get(), bytes.data(), static_cast<DWORD>(bytes.size()), &read, nullptr))
        Fail(L"PowerPoint could not read", path);
    bytes.resize(read);
    return bytes;
}

void WriteWholeFile(const std::wstring& path, std::string_view bytes)
{
    const FileHandle file{::CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr)};
    if (!file.IsOpen()) Fail(L"PowerPoint could not save", path);
    WriteAll(file.Get(), bytes, path);
}

void WriteDocumentFile(const std::wstring& path, const std::string& bytes, SaveFault fault)
{
    switch (fault) {
    case SaveFault::None:
        return WriteWholeFile(path, bytes);
    case SaveFault::Empty:
        return WriteWholeFile(path, {});
    case SaveFault::Zeros:
        return WriteWholeFile(path, std::string(bytes.size(), '\0'));
    case SaveFault::Growing:
        WriteWholeFile(path, std::string(bytes.size(), '\0'));
        return CompleteLater(path, bytes);
    case SaveFault::Error:
        break;
    }
    throw AutomationError{E_FAIL, L"An error occurred while PowerPoint was saving the file " + path + L"."};
}

FileHandle HoldOpenDocument(const std::wstring& path, bool readOnly)
{
    const DWORD access = readOnly ? GENERIC_READ : GENERIC_READ | GENERIC_WRITE;
    const DWORD sharing = readOnly ? FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE : FILE_SHARE_READ;
    return FileHandle{::CreateFileW(path.c_str(), access, sharing, nullptr, OPEN_EXISTING, 0, nullptr)};
}

std::wstring FullPath(const std::wstring& path)
{
    const DWORD size = ::GetFullPathNameW(path.c_str(), 0, nullptr, nullptr);
    std::wstring full(size, L'\0');
    full.resize(::GetFullPathNameW(path.c_str(), size, full.data(), nullptr));
    return full;
}

std::wstring FileName(const std::wstring& path)
{
    const std::size_t slash = path.find_last_of(L"\\/");
    return slash == std::wstring::npos ? path : path.substr(slash + 1);
}

std::wstring FolderOf(const std::wstring& path)
{
    const std::size_t slash = path.find_last_of(L"\\/");
    return slash == std::wstring::npos ? std::wstring{} : path.substr(0, slash);
}

std::wstring Extension(const std::wstring& path)
{
    const std::wstring name = FileName(path);
    const std::size_t point = name.find_last_of(L'.');
    std::wstring extension = point == std::wstring::npos ? std::wstring{} : name.substr(point + 1);
    std::ranges::transform(extension, extension.begin(), [](wchar_t c) { return std::towlower(c); });
    return extension;
}

} // namespace host
