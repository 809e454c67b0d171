#include "documents/SaveFormat.h"

#include <algorithm>
#include <optional>
#include <span>

#include "documents/Files.h"
#include "documents/Refusal.h"

namespace host
{
namespace
{

#define PRESENTATION_TYPE(kind) "application/vnd.openxmlformats-officedocument.presentationml." kind ".main+xml"
#define MACRO_PRESENTATION_TYPE(kind) "application/vnd.ms-powerpoint." kind ".macroEnabled.main+xml"

constexpr int kPackageVersion = 12;
constexpr int kLastClassic = 11;
constexpr int kEveryVersion = 99;

// A format of the Open XML kind, which versions before 12 do not know.
constexpr SaveFormat Package(long number, const wchar_t* extension, const char* type)
{
    return {number, extension, Container::Package, type, kPackageVersion};
}

constexpr SaveFormat Template(long number, const wchar_t* extension)
{
    return {number, extension, Container::Compound, nullptr, 0, kEveryVersion, true};
}

// PpSaveAsFileType
constexpr SaveFormat kPresentationFormats[] = {
    {1, L"ppt", Container::Compound},
    Template(5, L"pot"),
    {7, L"pps", Container::Compound},
    {8, L"ppa", Container::Compound},
    Package(24, L"pptx", PRESENTATION_TYPE("presentation")),
    Package(25, L"pptm", MACRO_PRESENTATION_TYPE("presentation")),
    Package(26, L"potx", PRESENTATION_TYPE("template")),
    Package(27, L"potm", MACRO_PRESENTATION_TYPE("template")),
    Package(28, L"ppsx", PRESENTATION_TYPE("slideshow")),
    Package(29, L"ppsm", MACRO_PRESENTATION_TYPE("slideshow")),
    Package(30, L"ppam", MACRO_PRESENTATION_TYPE("addin")),
};

// WdSaveFormat
constexpr SaveFormat kTextFormats[] = {
    {0, L"doc", Container::Compound},
    Template(1, L"dot"),
    Package(12, L"docx", "application/vnd.openxmlformats-officedocument.wordprocessingml.document.main+xml"),
    Package(13, L"docm", "application/vnd.ms-word.document.macroEnabled.main+xml"),
    Package(14, L"dotx", "application/vnd.openxmlformats-officedocument.wordprocessingml.template.main+xml"),
    Package(15, L"dotm", "application/vnd.ms-word.template.macroEnabledTemplate.main+xml"),
};

// XlFileFormat
constexpr SaveFormat kWorkbookFormats[] = {
    {-4143, L"xls", Container::Compound, nullptr, 0, kLastClassic},
    {56, L"xls", Container::Compound, nullptr, kPackageVersion},
    Template(17, L"xlt"),
    Package(50, L"xlsb", "application/vnd.ms-excel.sheet.binary.macroEnabled.main"),
    Package(51, L"xlsx", "application/vnd.openxmlformats-officedocument.spreadsheetml.sheet.main+xml"),
    Package(52, L"xlsm", "application/vnd.ms-excel.sheet.macroEnabled.main+xml"),
    Package(53, L"xltm", "application/vnd.ms-excel.template.macroEnabled.main+xml"),
    Package(54, L"xltx", "application/vnd.openxmlformats-officedocument.spreadsheetml.template.main+xml"),
};

// OlSaveAsType; the second writes its texts as Unicode
constexpr SaveFormat kMessageFormats[] = {
    {3, L"msg", Container::Message},
    {kUnicodeMessage, L"msg", Container::Message},
};

#undef PRESENTATION_TYPE
#undef MACRO_PRESENTATION_TYPE

struct HostFormats
{
    HostKind host;
    std::span<const SaveFormat> formats;
    long classic; // the default before version 12
    long current; // and from then on
    std::optional<long> standsForDefault;
};

constexpr HostFormats kHostFormats[] = {
    {HostKind::PowerPoint, kPresentationFormats, 1, 24, 11},
    {HostKind::Word, kTextFormats, 0, 12, 16},
    {HostKind::Excel, kWorkbookFormats, -4143, 51, std::nullopt},
    {HostKind::Outlook, kMessageFormats, 3, 3, std::nullopt},
};

const HostFormats& FormatsOf(HostKind host) { return *std::ranges::find(kHostFormats, host, &HostFormats::host); }

bool IsWrittenBy(const SaveFormat& format, int version)
{
    return format.firstVersion <= version && version <= format.lastVersion;
}

} // namespace

const SaveFormat& FormatOfNumber(HostKind host, long number, int version)
{
    const HostFormats& own = FormatsOf(host);
    const auto found = std::ranges::find(own.formats, number, &SaveFormat::number);
    if (found != own.formats.end() && IsWrittenBy(*found, version)) return *found;
    if (number == own.standsForDefault) return DefaultFormat(host, version);
    Refuse(host, Refusal::UnknownFormat, std::to_wstring(number));
}

const SaveFormat& DefaultFormat(HostKind host, int version)
{
    const HostFormats& own = FormatsOf(host);
    return FormatOfNumber(host, version < kPackageVersion ? own.classic : own.current, version);
}

const SaveFormat& FormatOfFile(HostKind host, const std::wstring& path, bool compound, int version)
{
    const std::wstring extension = Extension(path);
    const HostFormats& own = FormatsOf(host);
    const auto matches = [&](const SaveFormat& f) {
        return extension == f.extension && (f.container != Container::Package) == compound && version <= f.lastVersion;
    };
    const auto found = std::ranges::find_if(own.formats, matches);
    if (found != own.formats.end()) return *found;
    return *std::ranges::find(own.formats, compound ? own.classic : own.current, &SaveFormat::number);
}

bool IsKnownExtension(HostKind host, const std::wstring& extension)
{
    return std::ranges::any_of(FormatsOf(host).formats, [&](const SaveFormat& f) { return extension == f.extension; });
}

} // namespace host
