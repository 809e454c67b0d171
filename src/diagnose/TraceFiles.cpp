#include "diagnose/TraceFiles.h"

#include "platform/Files.h"
#include "support/TraceText.h"

#include <algorithm>
#include <string_view>

namespace diagnose
{
namespace
{

std::wstring TraceFolder()
{
    std::wstring folder = corvane::ApplicationDataFolder();
    for (const wchar_t* name : corvane::kTraceFolders)
        folder += name;
    return folder + L"\\";
}

bool IsTrace(const WIN32_FIND_DATAW& entry)
{
    return (entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0 &&
           corvane::IsTraceFileName(corvane::kTraceApplication, entry.cFileName);
}

} // namespace

std::vector<TraceFile> FindTraces()
{
    std::vector<TraceFile> files;
    WIN32_FIND_DATAW entry{};
    const HANDLE first = ::FindFirstFileW((TraceFolder() + L"*.log").c_str(), &entry);
    if (first == INVALID_HANDLE_VALUE) return files;
    const corvane::Unique<HANDLE, ::FindClose> search{first};
    do {
        if (IsTrace(entry))
            files.push_back({entry.cFileName, (std::uint64_t{entry.nFileSizeHigh} << 32U) | entry.nFileSizeLow,
                             corvane::FileTimeOf(entry.ftLastWriteTime)});
    } while (::FindNextFileW(search.Get(), &entry));
    std::ranges::sort(files, std::ranges::greater{}, &TraceFile::written);
    return files;
}

std::optional<LastTrace> FindLastTrace()
{
    const std::vector<TraceFile> files = FindTraces();
    if (files.empty()) return std::nullopt;
    LastTrace trace{.file = TraceFolder() + files.front().name, .errors = 0, .lastNumber = {}};
    const std::string text = ReadTrace({files.front(), 0});
    constexpr std::string_view kError = "\r\n\tNumber = ";
    for (std::size_t at = text.find(kError); at != std::string::npos; at = text.find(kError, at + 1)) {
        const std::size_t number = at + kError.size();
        const std::string digits = text.substr(number, text.find('\r', number) - number);
        trace.lastNumber.assign(digits.begin(), digits.end());
        ++trace.errors;
    }
    return trace;
}

std::string ReadTrace(const TraceEnd& end)
{
    const std::wstring path = TraceFolder() + end.file.name;
    // A file that is being written is listed with an old size.
    const std::uint64_t length = corvane::FileLength(path).value_or(0);
    std::string text(static_cast<std::size_t>(length - std::min(length, end.from)), '\0');
    text.resize(corvane::ReadFile(path, std::as_writable_bytes(std::span{text}), end.from));
    return end.from == 0 ? text : WithoutCutLine(std::move(text));
}

TraceRemoval RemoveTraces(int days)
{
    TraceRemoval removal;
    const std::uint64_t now = corvane::FileTimeNow();
    for (const TraceFile& file : FindTraces()) {
        const bool isOld = IsOlder(file, days, now);
        const bool isGone = isOld && ::DeleteFileW((TraceFolder() + file.name).c_str());
        ++(isGone ? removal.removed : removal.left);
        if (isOld && !isGone) ++removal.refused;
    }
    return removal;
}

} // namespace diagnose
