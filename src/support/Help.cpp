#include "support/Help.h"

#include "platform/Files.h"
#include "platform/HResult.h"
#include "platform/Messages.h"
#include "platform/Owners.h"
#include "platform/SystemLibrary.h"
#include "support/CTraceLog.h"

namespace corvane
{
namespace
{

// Commands of HtmlHelpA.
constexpr UINT kDisplayContents = 1; // HH_DISPLAY_TOC
constexpr UINT kHelpContext = 15;    // HH_HELP_CONTEXT
constexpr UINT kCloseAll = 18;       // HH_CLOSE_ALL

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
    if (Viewer()(owner, AnsiPath(HelpFile()).c_str(), command, data) == nullptr)
        ShowMessage(L"The help file \"" + HelpFile() + L"\" could not be opened.", kStyleExclamation);
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
    if (Viewer() != nullptr) Viewer()(nullptr, nullptr, kCloseAll, 0);
}

} // namespace corvane
