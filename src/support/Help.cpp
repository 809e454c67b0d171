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

std::wstring& HelpFile()
{
    static std::wstring file;
    return file;
}

// The viewer takes paths in the ANSI code page; a path with other letters has a short form without them.
std::string AnsiPath(const std::wstring& longPath)
{
    return ToCodePage(FitsCodePage(longPath) ? longPath : ShortPath(longPath));
}

// The viewer, once it was needed. It stays loaded: its windows outlive the call.
HtmlHelp& Viewer() noexcept
{
    static HtmlHelp viewer = nullptr;
    return viewer;
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

// Those of them that we have opened.
std::set<HWND>& OwnWindows()
{
    static std::set<HWND> windows;
    return windows;
}

void LoadViewer()
{
    if (Viewer() != nullptr) return;
    Viewer() = SystemFunction{L"hhctrl.ocx", "HtmlHelpA"};
}

void Show(HWND owner, UINT command, DWORD_PTR data)
{
    if (!FileExists(HelpFile())) {
        ShowMessage(L"The help file \"" + HelpFile() + L"\" was not found.", kStyleExclamation);
        return;
    }
    LoadViewer();
    const std::set<HWND> before = OpenWindows();
    const HWND window = Viewer()(owner, AnsiPath(HelpFile()).c_str(), command, data);
    if (window == nullptr)
        ShowMessage(L"The help file \"" + HelpFile() + L"\" could not be opened.", kStyleExclamation);
    else if (!before.contains(window))
        OwnWindows().insert(window);
}

} // namespace

void SetHelpFile(std::wstring path) { HelpFile() = std::move(path); }

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
            if (OwnWindows().contains(window))
                ::SendMessageTimeoutW(window, WM_CLOSE, 0, 0, SMTO_ABORTIFHUNG, kClosePatience, &result);
        }
        OwnWindows().clear();
    });
}

} // namespace corvane
