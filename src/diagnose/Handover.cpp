#include "diagnose/Handover.h"

#include "diagnose/Configuration.h"
#include "diagnose/Masking.h"
#include "diagnose/TraceFiles.h"
#include "diagnose/ZipArchive.h"
#include "platform/CodePage.h"
#include "platform/Files.h"
#include "platform/Procedure.h"
#include "platform/Utf8.h"

namespace diagnose
{
namespace
{

corvane::LocalTime LocalTimeOf(std::uint64_t written)
{
    const FILETIME time{static_cast<DWORD>(written), static_cast<DWORD>(written >> 32U)};
    SYSTEMTIME universal{};
    SYSTEMTIME local{};
    ::FileTimeToSystemTime(&time, &universal);
    ::SystemTimeToTzSpecificLocalTime(nullptr, &universal, &local);
    return {local.wYear, local.wMonth, local.wDay, local.wHour, local.wMinute, local.wSecond};
}

// An 8-bit text as it was found where there is nothing to mask, whatever its code page.
std::string MaskedBytes(std::string bytes)
{
    const std::wstring text = corvane::FromCodePage(bytes);
    const std::wstring masked = Masked(text);
    return masked == text ? std::move(bytes) : corvane::ToCodePage(masked);
}

std::string SettingsText(const std::wstring& file)
{
    constexpr std::uint64_t kMostBytes = std::uint64_t{1} << 20U;
    std::string text(static_cast<std::size_t>(std::min(corvane::FileLength(file).value_or(0), kMostBytes)), '\0');
    text.resize(corvane::ReadFile(file, std::as_writable_bytes(std::span{text})));
    return MaskedBytes(std::move(text));
}

std::vector<ArchivedFile> FilesOf(const Diagnosis& diagnosis)
{
    const corvane::LocalTime now = LocalTimeOf(corvane::FileTimeNow());
    std::vector<ArchivedFile> files{{"report.txt", corvane::ToUtf8(Masked(TextOf(diagnosis))), now},
                                    {"policy.txt", corvane::ToUtf8(PolicyText()), now}};
    const Configuration& configuration = diagnosis.configuration;
    if (configuration.settingsFileExists)
        files.push_back({"settings.config", SettingsText(configuration.settingsFile),
                         LocalTimeOf(corvane::LastWriteTime(configuration.settingsFile).value_or(0))});
    for (const TraceEnd& end : TracesToHandOn(FindTraces()))
        files.push_back(
            {"traces/" + corvane::ToUtf8(end.file.name), MaskedBytes(ReadTrace(end)), LocalTimeOf(end.file.written)});
    return files;
}

} // namespace

void WriteHandover(const std::wstring& file, const Diagnosis& diagnosis)
{
    const std::string archive = ZipArchive(FilesOf(diagnosis));
    const auto error = corvane::Catch([&] { corvane::WriteFile(file, std::as_bytes(std::span{archive})); });
    if (error)
        throw corvane::Error{error->Number(), error->Source(), file + L" cannot be written: " + error->Description()};
}

} // namespace diagnose
