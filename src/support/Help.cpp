#include "support/Help.h"

#include "platform/Files.h"
#include "platform/HResult.h"
#include "platform/Messages.h"
#include "platform/Owners.h"
#include "platform/SystemLibrary.h"
#include "support/CTraceLog.h"

#include <array>
#include <set>
#include <string_view>

namespace corvane
{
namespace
{

// Commands of HtmlHelpA.
constexpr UINT kDisplayContents = 1; // HH_DISPLAY_TOC
constexpr UINT kHelpContext = 15;    // HH_HELP_CONTEXT

// The class of the viewer's windows. The viewer's own command to close (HH_CLOSE_ALL) closes those of the host as well.
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
    return AnsiText(FitsAnsiCodePage(longPath) ? longPath : ShortPath(longPath));
}

// The viewer, once it was needed. It stays loaded: its windows outlive the call.
HtmlHelp& Viewer() noexcept
{
    static HtmlHelp viewer = nullptr;
    return viewer;
}

// The viewer's windows that we have opened.
std::set<HWND>& Windows()
{
    static std::set<HWND> windows;
    return windows;
}

// Whether the handle is still a window of the viewer in this process; the system gives handles anew.
bool IsViewer(HWND window) noexcept
{
    DWORD process = 0;
    std::array<wchar_t, std::size(kViewerClass) + 1> name{};
    return ::GetWindowThreadProcessId(window, &process) != 0 && process == ::GetCurrentProcessId() &&
           ::GetClassNameW(window, name.data(), static_cast<int>(name.size())) != 0 &&
           std::wstring_view{name.data()} == kViewerClass;
}

void LoadViewer()
{
    if (Viewer() != nullptr) return;
    const HMODULE library = LoadSystemLibrary(L"hhctrl.ocx");
    CheckWin32(library != nullptr, L"HtmlHelpA");
    Viewer() = reinterpret_cast<HtmlHelp>(reinterpret_cast<void*>(::GetProcAddress(library, "HtmlHelpA")));
    CheckWin32(Viewer() != nullptr, L"HtmlHelpA");
}

void Show(HWND owner, UINT command, DWORD_PTR data)
{
    if (!FileExists(HelpFile())) {
        ShowMessage(L"The help file \"" + HelpFile() + L"\" was not found.", kStyleExclamation);
        return;
    }
    LoadViewer();
    const HWND window = Viewer()(owner, AnsiPath(HelpFile()).c_str(), command, data);
    if (window == nullptr)
        ShowMessage(L"The help file \"" + HelpFile() + L"\" could not be opened.", kStyleExclamation);
    else
        Windows().insert(window);
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
    for (const HWND window : Windows()) {
        DWORD_PTR result = 0;
        if (IsViewer(window)) ::SendMessageTimeoutW(window, WM_CLOSE, 0, 0, SMTO_ABORTIFHUNG, kClosePatience, &result);
    }
    Windows().clear();
}

} // namespace corvane
