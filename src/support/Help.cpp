#include "support/Help.h"

#include "forms/Messages.h"
#include "platform/CodePage.h"
#include "platform/Files.h"
#include "platform/Owners.h"
#include "platform/Procedure.h"
#include "platform/SystemLibrary.h"
#include "support/CTraceLog.h"

#include <set>

namespace corvane
{
namespace
{

// Commands of HtmlHelpA.
constexpr UINT kDisplayContents = 1; // HH_DISPLAY_TOC
constexpr UINT kHelpContext = 15;    // HH_HELP_CONTEXT

// The class of the viewer's windows. Its own command to close them (HH_CLOSE_ALL) closes those of the host as well.
constexpr wchar_t kViewerClass[] = L"HH Parent";
constexpr UINT kClosePatience = 1000; // milliseconds: the viewer's windows may live in a thread of their own

using HtmlHelp = HWND(WINAPI*)(HWND owner, LPCSTR file, UINT command, DWORD_PTR data);

std::wstring g_helpFile;
HtmlHelp g_viewer = nullptr; // once it was needed; it stays loaded, since its windows outlive the call
std::set<HWND> g_ownWindows; // those of the viewer's that we have opened

// The viewer takes paths in the ANSI code page; a path with other letters has a short form without them.
std::string AnsiPath(const std::wstring& longPath)
{
    return ToCodePage(FitsCodePage(longPath) ? longPath : ShortPath(longPath));
}

// The viewer's windows in this process.
std::set<HWND> OpenWindows()
{
    std::set<HWND> windows;
    for (HWND window = nullptr; (window = ::FindWindowExW(nullptr, window, kViewerClass, nullptr)) != nullptr;) {
        DWORD process = 0;
        ::GetWindowThreadProcessId(window, &process);
        if (process == ::GetCurrentProcessId()) windows.insert(window);
    }
    return windows;
}

void Show(HWND owner, UINT command, DWORD_PTR data)
{
    if (!FileExists(g_helpFile)) {
        ShowMessage(L"The help file \"" + g_helpFile + L"\" was not found.", kStyleExclamation);
        return;
    }
    if (g_viewer == nullptr) g_viewer = SystemFunction{L"hhctrl.ocx", "HtmlHelpA"};
    const std::set<HWND> before = OpenWindows();
    const HWND window = g_viewer(owner, AnsiPath(g_helpFile).c_str(), command, data);
    if (window == nullptr)
        ShowMessage(L"The help file \"" + g_helpFile + L"\" could not be opened.", kStyleExclamation);
    else if (!before.contains(window))
        g_ownWindows.insert(window);
}

} // namespace

void SetHelpFile(std::wstring path) { g_helpFile = std::move(path); }

void ShowHelpContents() { Show(nullptr, kDisplayContents, 0); }

void ShowHelpTopic(HWND owner, HelpTopic topic)
{
    TraceVariable(L"Help topic", std::to_wstring(static_cast<int>(topic)));
    Show(owner, kHelpContext, static_cast<DWORD_PTR>(topic));
}

void CloseHelp() noexcept
{
    Ignoring([] {
        for (const HWND window : OpenWindows()) {
            DWORD_PTR result = 0;
            if (g_ownWindows.contains(window))
                ::SendMessageTimeoutW(window, WM_CLOSE, 0, 0, SMTO_ABORTIFHUNG, kClosePatience, &result);
        }
        g_ownWindows.clear();
    });
}

} // namespace corvane
