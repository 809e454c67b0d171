#include "support/VersionText.h"

namespace corvane
{

std::wstring VersionText(int major, int minor, int revision)
{
    const std::wstring padding = minor < 10 ? L"0" : L"";
    return L"Version " + std::to_wstring(major) + L"." + padding + std::to_wstring(minor) + L"." +
           std::to_wstring(revision);
}

} // namespace corvane
