// Hosts by their names and versions.
#pragma once

#include <algorithm>
#include <string_view>

namespace corvane
{

inline constexpr const wchar_t* kWordName = L"Microsoft Word";
inline constexpr const wchar_t* kExcelName = L"Microsoft Excel";
inline constexpr const wchar_t* kPowerPointName = L"Microsoft PowerPoint";
inline constexpr const wchar_t* kOutlookName = L"Outlook";

// The number at the front of a host's version text ("16.0" gives 16); 0 when there is none.
[[nodiscard]] constexpr int MajorVersion(std::wstring_view version) noexcept
{
    constexpr int kLargest = 10000;
    version.remove_prefix(std::min(version.find_first_not_of(L" \t"), version.size()));
    int number = 0;
    for (const wchar_t letter : version) {
        if (letter < L'0' || letter > L'9' || number > kLargest) break;
        number = number * 10 + (letter - L'0');
    }
    return number;
}

// Hosts from version 12 on have a ribbon; older ones have command bars.
inline constexpr int kFirstRibbonVersion = 12;
// Hosts from version 14 on have Backstage.
inline constexpr int kFirstBackstageVersion = 14;

[[nodiscard]] constexpr bool HasRibbon(int majorVersion) noexcept { return majorVersion >= kFirstRibbonVersion; }
[[nodiscard]] constexpr bool HasBackstage(int majorVersion) noexcept { return majorVersion >= kFirstBackstageVersion; }

} // namespace corvane
