// The version as the About box shows it.
#pragma once

#include <string>

namespace corvane
{

// "Version 8.50.100": major, minor with at least two digits, revision.
[[nodiscard]] inline std::wstring VersionText(int major, int minor, int revision)
{
    const std::wstring padding = minor < 10 ? L"0" : L"";
    return L"Version " + std::to_wstring(major) + L"." + padding + std::to_wstring(minor) + L"." +
           std::to_wstring(revision);
}

} // namespace corvane
