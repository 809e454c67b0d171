#include "shared/DocumentNames.h"

#include "support/Conversions.h"

#include <algorithm>

namespace corvane
{
namespace
{

// Leaves room for a number, an extension and the folder within what the system's dialogs can open.
constexpr std::size_t kLongestName = 120;

// Names that the system keeps for devices, whatever follows their first point.
bool IsDeviceName(std::wstring_view name)
{
    const std::wstring stem = ToLower(Trim(name.substr(0, name.find(L'.'))));
    for (const wchar_t* device : {L"con", L"prn", L"aux", L"nul", L"conin$", L"conout$"}) {
        if (stem == device) return true;
    }
    const bool numbered = stem.size() == 4 && (stem.starts_with(L"com") || stem.starts_with(L"lpt"));
    return numbered && std::wstring_view{L"0123456789\xB9\xB2\xB3"}.find(stem[3]) != std::wstring_view::npos;
}

} // namespace

std::wstring ExtensionOf(std::wstring_view path)
{
    const auto name = path.substr(path.find_last_of(L"\\/") + 1);
    const auto point = name.find_last_of(L'.');
    return point == std::wstring_view::npos || point + 1 == name.size() ? L"" : std::wstring{name.substr(point)};
}

std::wstring TitleWithExtension(std::wstring_view name, std::wstring_view defaultExtension)
{
    return std::wstring{name} + (ExtensionOf(name).empty() ? std::wstring{defaultExtension} : std::wstring{});
}

std::wstring UploadNameOf(std::wstring_view title, std::wstring_view savedPath)
{
    const std::wstring extension = ExtensionOf(savedPath);
    const bool holdsIt = ToLower(title).find(ToLower(extension)) != std::wstring::npos;
    return std::wstring{title} + (holdsIt ? std::wstring{} : extension);
}

bool IsWebAddress(std::wstring_view fullName)
{
    const std::wstring lower = ToLower(fullName.substr(0, 8));
    return lower.starts_with(L"http://") || lower.starts_with(L"https://");
}

std::wstring AsFileName(std::wstring_view title)
{
    std::wstring name = Trim(title);
    constexpr std::wstring_view kForbidden = L"\\/:*?\"<>|";
    const auto isForbidden = [&](wchar_t letter) {
        return letter < L' ' || kForbidden.find(letter) != std::wstring_view::npos;
    };
    std::ranges::replace_if(name, isForbidden, L'_');
    name.resize(std::min(name.size(), kLongestName));
    while (!name.empty() && (name.back() == L'.' || name.back() == L' '))
        name.pop_back();
    return name.empty() || IsDeviceName(name) ? L"_" + name : name;
}

DiskSave PlanDiskSave(const DocumentPlace& place)
{
    if (IsWebAddress(place.fullName)) return DiskSave::TemporaryCopy;
    if (place.path.empty()) return DiskSave::InDocuments;
    return place.readOnly ? DiskSave::TemporaryCopy : DiskSave::InPlace;
}

} // namespace corvane
