#include "documents/Files.h"

#include <algorithm>
#include <chrono>
#include <cwctype>
#include <regex>
#include <thread>

#include "automation/Errors.h"
#include "base/Console.h"
#include "platform/HResult.h"
#include "platform/LongPath.h"

namespace host
{
namespace
{

using corvane::AsLongPath;

constexpr std::chrono::milliseconds kGrowthTime{2500};

struct FaultRow
{
    SaveFault fault;
    std::string_view name;
    DWORD error = ERROR_SUCCESS; // what the save fails with, if it does
};

constexpr FaultRow kFaults[] = {
    {SaveFault::Empty, "empty"},
    {SaveFault::Zeros, "zeros"},
    {SaveFault::Growing, "growing"},
    {SaveFault::Locked, "locked", ERROR_SHARING_VIOLATION},
    {SaveFault::Full, "full", ERROR_DISK_FULL},
    {SaveFault::Denied, "denied", ERROR_ACCESS_DENIED},
    {SaveFault::Gone, "gone"},
    {SaveFault::Refused, "refused"},
    {SaveFault::Held, "held"},
};

[[noreturn]] void Fail(DWORD code, const std::wstring& path)
{
    const HRESULT result = HRESULT_FROM_WIN32(code);
    throw Error{result, {}, path + L": " + corvane::MessageOf(result)};
}

UniqueFile OpenFile(const std::wstring& path, DWORD access, DWORD sharing, DWORD disposition = OPEN_EXISTING)
{
    const HANDLE file = ::CreateFileW(AsLongPath(path).c_str(), access, sharing, nullptr, disposition, 0, nullptr);
    return UniqueFile{file == INVALID_HANDLE_VALUE ? nullptr : file};
}

bool WriteAll(const UniqueFile& file, std::string_view bytes)
{
    DWORD written = 0;
    return file &&
           ::WriteFile(file.Get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr) != FALSE &&
           written == bytes.size();
}

void CompleteLater(std::wstring path, std::string bytes)
{
    std::thread{[path = std::move(path), bytes = std::move(bytes)] {
        std::this_thread::sleep_for(kGrowthTime);
        const auto file = OpenFile(path, GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE);
        if (!WriteAll(file, bytes)) PrintError(L"the growing file could not be completed: " + path);
    }}.detach();
}

} // namespace

SaveFault SaveFaultNamed(std::string_view name)
{
    const auto found = std::ranges::find(kFaults, name, &FaultRow::name);
    return found == std::end(kFaults) ? SaveFault::None : found->fault;
}

std::string ReadWholeFile(const std::wstring& path)
{
    const UniqueFile file = OpenFile(path, GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE);
    LARGE_INTEGER size{};
    if (!file || !::GetFileSizeEx(file.Get(), &size)) Fail(::GetLastError(), path);
    std::string bytes(static_cast<std::size_t>(size.QuadPart), '\0');
    DWORD read = 0;
    if (!::ReadFile(file.Get(), bytes.data(), static_cast<DWORD>(bytes.size()), &read, nullptr))
        Fail(::GetLastError(), path);
    bytes.resize(read);
    return bytes;
}

void WriteWholeFile(const std::wstring& path, std::string_view bytes)
{
    if (!WriteAll(OpenFile(path, GENERIC_WRITE, 0, CREATE_ALWAYS), bytes)) Fail(::GetLastError(), path);
}

UniqueFile WriteDocumentFile(const std::wstring& path, const std::string& bytes, SaveFault fault)
{
    const auto row = std::ranges::find(kFaults, fault, &FaultRow::fault);
    if (row != std::end(kFaults) && row->error != ERROR_SUCCESS) Fail(row->error, path);
    const std::size_t zeros = fault == SaveFault::Zeros     ? bytes.size()
                              : fault == SaveFault::Growing ? bytes.size() / 2
                                                            : 0;
    WriteWholeFile(path, zeros != 0 || fault == SaveFault::Empty ? std::string(zeros, '\0') : bytes);
    if (fault == SaveFault::Growing) CompleteLater(path, bytes);
    if (fault == SaveFault::Gone) ::DeleteFileW(AsLongPath(path).c_str());
    return fault == SaveFault::Held ? OpenFile(path, GENERIC_READ, 0) : UniqueFile{};
}

UniqueFile HoldOpenDocument(const std::wstring& path, bool readOnly)
{
    const DWORD access = readOnly ? GENERIC_READ : GENERIC_READ | GENERIC_WRITE;
    const DWORD sharing = readOnly ? FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE : FILE_SHARE_READ;
    return OpenFile(path, access, sharing);
}

bool IsWriteProtected(const std::wstring& path)
{
    const DWORD attributes = ::GetFileAttributesW(AsLongPath(path).c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) != 0;
}

bool IsUsableName(const std::wstring& path)
{
    static const std::wregex device{L"(CON|PRN|AUX|NUL|(COM|LPT)[1-9]) *(\\..*)?", std::regex::icase};
    const std::wstring name = FileName(path);
    return !name.empty() && !std::regex_match(name, device) && name.find_first_of(L"<>:\"|?*") == std::wstring::npos;
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
    return path.substr(path.find_last_of(L"\\/") + 1); // from the start where there is no folder
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
