// Hosts by their names and versions.
#pragma once

#include <string_view>

namespace corvane
{

inline constexpr const wchar_t* kWordName = L"Microsoft Word";
inline constexpr const wchar_t* kExcelName = L"Microsoft Excel";
inline constexpr const wchar_t* kPowerPointName = L"Microsoft PowerPoint";
inline constexpr const wchar_t* kOutlookName = L"Outlook";

// The number at the front of a host's version text ("16.0" gives 16); 0 when there is none.
[[nodiscard]] int MajorVersion(std::wstring_view version) noexcept;

// Hosts from version 12 on have a ribbon; older ones have command bars.
inline constexpr int kFirstRibbonVersion = 12;
// Hosts from version 14 on have Backstage.
inline constexpr int kFirstBackstageVersion = 14;

[[nodiscard]] constexpr bool HasRibbon(int majorVersion) noexcept { return majorVersion >= kFirstRibbonVersion; }
[[nodiscard]] constexpr bool HasBackstage(int majorVersion) noexcept { return majorVersion >= kFirstBackstageVersion; }

} // namespace corvane
