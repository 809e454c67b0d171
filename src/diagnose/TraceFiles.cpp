#include "diagnose/TraceFiles.h"

#include "platform/Files.h"
#include "support/TraceText.h"

#include <string_view>

namespace diagnose
{
namespace
{

struct FindTraits
{
    using Value = HANDLE;
    static constexpr Value kEmpty = nullptr;
    static void Free(Value search) noexcept { ::FindClose(search); }
};

std::wstring TraceFolder()
{
    std::wstring folder = corvane::ApplicationDataFolder();
    for (const wchar_t* name : corvane::kTraceFolders)
        folder += name;
    return folder + L"\\";
}

std::wstring NewestFile(const std::wstring& folder)
{
    WIN32_FIND_DATAW entry{};
    const HANDLE first = ::FindFirstFileW((folder + L"*.log").c_str(), &entry);
    if (first == INVALID_HANDLE_VALUE) return {};
    const corvane::Unique<FindTraits> search{first};
    std::wstring newest;
    FILETIME latest{};
    do {
        if (!newest.empty() && ::CompareFileTime(&entry.ftLastWriteTime, &latest) <= 0) continue;
        newest = entry.cFileName;
        latest = entry.ftLastWriteTime;
    } while (::FindNextFileW(search.Get(), &entry));
    return newest;
}

std::string TextOf(const std::wstring& file)
{
    std::string text(static_cast<std::size_t>(corvane::FileLength(file).value_or(0)), '\0');
    text.resize(corvane::ReadFile(file, std::as_writable_bytes(std::span{text})));
    return text;
}

} // namespace

std::optional<LastTrace> FindLastTrace()
{
    const std::wstring folder = TraceFolder();
    const std::wstring name = NewestFile(folder);
    if (name.empty()) return std::nullopt;
    LastTrace trace{.file = folder + name, .errors = 0, .lastNumber = {}};
    const std::string text = TextOf(trace.file);
    constexpr std::string_view kError = "\r\n\tNumber = ";
    for (std::size_t at = text.find(kError); at != std::string::npos; at = text.find(kError, at + 1)) {
        const std::size_t number = at + kError.size();
        const std::string digits = text.substr(number, text.find('\r', number) - number);
        trace.lastNumber.assign(digits.begin(), digits.end());
        ++trace.errors;
    }
    return trace;
}

} // namespace diagnose
