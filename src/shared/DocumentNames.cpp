#include "shared/DocumentNames.h"

#include "support/Conversions.h"

#include <algorithm>

namespace corvane
{

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
    std::wstring name{title};
    std::replace_if(
        name.begin(), name.end(),
        [](wchar_t letter) {
            return letter < L' ' || std::wstring_view{L"\\/:*?\"<>|"}.find(letter) != std::wstring_view::npos;
        },
        L'_');
    return name;
}

DiskSave PlanDiskSave(const DocumentPlace& place)
{
    if (IsWebAddress(place.fullName)) return DiskSave::TemporaryCopy;
    if (place.path.empty()) return DiskSave::InDocuments;
    return place.readOnly ? DiskSave::TemporaryCopy : DiskSave::InPlace;
}

} // namespace corvane
