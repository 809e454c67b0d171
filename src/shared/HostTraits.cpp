#include "shared/HostTraits.h"

#include "shared/DocumentNames.h"
#include "shared/HostVersion.h"
#include "support/Conversions.h"

#include <algorithm>

namespace corvane
{
namespace
{

constexpr int kLastClassic = kFirstRibbonVersion - 1;
constexpr int kWord2002 = 10;

// WdSaveFormat
constexpr SaveFormat kWordFormats[] = {
    {L".doc", 0},
    {L".dot", 1},
    {L".rtf", 6},
    {L".docx", 12, kFirstRibbonVersion},
    {L".docm", 13, kFirstRibbonVersion},
    {L".dotx", 14, kFirstRibbonVersion},
    {L".dotm", 15, kFirstRibbonVersion},
    {L".odt", 23, kFirstRibbonVersion},
};
// XlFileFormat
constexpr SaveFormat kExcelFormats[] = {
    {L".xls", -4143, 0, kLastClassic},
    {L".xls", 56, kFirstRibbonVersion},
    {L".xlt", 17},
    {L".csv", 6},
    {L".xlsb", 50, kFirstRibbonVersion},
    {L".xlsx", 51, kFirstRibbonVersion},
    {L".xlsm", 52, kFirstRibbonVersion},
    {L".xltm", 53, kFirstRibbonVersion},
    {L".xltx", 54, kFirstRibbonVersion},
    {L".ods", 60, kFirstRibbonVersion},
};
// PpSaveAsFileType
constexpr SaveFormat kPowerPointFormats[] = {
    {L".ppt", 1},
    {L".pot", 5},
    {L".pps", 7},
    {L".ppa", 8},
    {L".pptx", 24, kFirstRibbonVersion},
    {L".pptm", 25, kFirstRibbonVersion},
    {L".potx", 26, kFirstRibbonVersion},
    {L".potm", 27, kFirstRibbonVersion},
    {L".ppsx", 28, kFirstRibbonVersion},
    {L".ppsm", 29, kFirstRibbonVersion},
    {L".ppam", 30, kFirstRibbonVersion},
    {L".odp", 35, kFirstRibbonVersion},
};
// OlSaveAsType: the form of a message file that keeps every character
constexpr SaveFormat kOutlookFormats[] = {{L".msg", 9}};

constexpr HostTraits kHosts[] = {
    {.name = kWordName,
     .classicExtension = L".doc",
     .extension = L".docx",
     .macroExtension = L".docm",
     .formats = kWordFormats,
     .activeDocument = L"ActiveDocument",
     .documents = L"Documents",
     .versionWithoutMacros = kWord2002},
    {.name = kExcelName,
     .classicExtension = L".xls",
     .extension = L".xlsx",
     .macroExtension = L".xlsm",
     .formats = kExcelFormats,
     .activeDocument = L"ActiveWorkbook",
     .documents = L"Workbooks",
     .copy = {L"SaveCopyAs"},
     .editingBar = L"Worksheet Menu Bar",
     .hasInteractive = true,
     .firstBlindToProperties = kFirstRibbonVersion},
    {.name = kPowerPointName,
     .classicExtension = L".ppt",
     .extension = L".pptx",
     .macroExtension = L".pptm",
     .formats = kPowerPointFormats,
     .activeDocument = L"ActivePresentation",
     .documents = L"Presentations",
     .copy = {L"SaveCopyAs", true},
     .namesDocumentOfMacro = true},
    {.name = kOutlookName,
     .classicExtension = L".msg",
     .extension = L".msg",
     .macroExtension = L".msg",
     .formats = kOutlookFormats,
     .inspector = L"ActiveInspector",
     .documentName = L"Subject",
     .copy = {L"SaveAs", true}},
};

bool Writes(const HostTraits& host, std::wstring_view extension)
{
    const std::wstring lower = ToLower(extension);
    return std::ranges::any_of(host.formats, [&](const SaveFormat& format) { return format.extension == lower; });
}

} // namespace

const HostTraits* FindHost(std::wstring_view applicationName) noexcept
{
    const auto* found =
        std::ranges::find_if(kHosts, [&](const HostTraits& host) { return applicationName == host.name; });
    return found == std::end(kHosts) ? nullptr : found;
}

const wchar_t* DefaultExtension(const HostTraits& host, int version, bool hasMacros) noexcept
{
    if (!HasRibbon(version)) return host.classicExtension;
    return hasMacros ? host.macroExtension : host.extension;
}

std::optional<std::int32_t> SaveTypeFor(const HostTraits& host, int version, std::wstring_view extension)
{
    const std::wstring lower = ToLower(extension);
    for (const SaveFormat& format : host.formats) {
        if (format.extension == lower && format.firstVersion <= version && version <= format.lastVersion)
            return format.type;
    }
    return std::nullopt;
}

std::wstring TitleOf(const HostTraits& host, int version, const std::wstring& name, bool everSaved, bool hasMacros)
{
    const wchar_t* extension = DefaultExtension(host, version, hasMacros);
    if (everSaved) return TitleWithExtension(name, extension);
    const std::wstring own = Writes(host, ExtensionOf(name)) ? ExtensionOf(name) : std::wstring{};
    const std::wstring base = name.substr(0, name.size() - own.size());
    return AsFileName(base) + (own.empty() ? extension : own);
}

} // namespace corvane
