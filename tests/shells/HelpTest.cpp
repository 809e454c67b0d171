// The help viewer beside a help window of the host.
#include "OfferedClass.h"

#include "platform/Files.h"
#include "platform/Owners.h"
#include "support/Help.h"

#include <gtest/gtest.h>
#include <set>

using namespace corvane;

namespace
{

// The help windows of this process.
std::set<HWND> HelpWindows()
{
    std::set<HWND> windows;
    for (HWND one = nullptr; (one = ::FindWindowExW(nullptr, one, L"HH Parent", nullptr)) != nullptr;)
        windows.insert(one);
    return windows;
}

TEST(Help, ClosesItsOwnWindowsAtTheEnd)
{
    const Apartment apartment;
    using HtmlHelp = HWND(WINAPI*)(HWND owner, LPCWSTR file, UINT command, DWORD_PTR data);
    const auto viewer = reinterpret_cast<HtmlHelp>(
        reinterpret_cast<void*>(::GetProcAddress(::LoadLibraryW(L"hhctrl.ocx"), "HtmlHelpW")));
    const TemporaryFile ofTheHost{L"chm"};
    CopyWholeFile(HELP_FILE, ofTheHost.Path());
    SetHelpFile(HELP_FILE);
    ShowHelpContents();
    EXPECT_EQ(HelpWindows().size(), 1U);
    CloseHelp();
    EXPECT_TRUE(HelpWindows().empty());

    constexpr UINT kDisplayContents = 1;
    const HWND hosts = viewer(nullptr, ofTheHost.Path().c_str(), kDisplayContents, 0);
    ShowHelpContents();
    CloseHelp();
    EXPECT_EQ(HelpWindows(), std::set<HWND>{hosts});
    ::DestroyWindow(hosts);
}

} // namespace
