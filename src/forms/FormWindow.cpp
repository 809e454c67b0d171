#include "forms/FormWindow.h"

#include "forms/FormLayout.h"
#include "forms/FormList.h"
#include "forms/FormTemplate.h"
#include "platform/ComObject.h"
#include "platform/HResult.h"
#include "resources/resource.h"

#include <commctrl.h>

namespace corvane
{
namespace
{

constexpr int kPointsPerInch = 72;

TemplateFont MessageFont()
{
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof metrics;
    CheckWin32(::SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0) != FALSE, L"MessageFont");
    const LOGFONTW& font = metrics.lfMessageFont;
    const int points = ::MulDiv(std::abs(font.lfHeight), kPointsPerInch, ScreenDotsPerInch());
    return {.pointSize = static_cast<std::uint16_t>(points),
            .weight = static_cast<std::uint16_t>(font.lfWeight),
            .italic = font.lfItalic != 0,
            .charset = font.lfCharSet,
            .face = reinterpret_cast<const char16_t*>(font.lfFaceName)};
}

std::span<const std::byte> DialogResource(int templateId)
{
    const HINSTANCE module = Library::Module();
    const HRSRC found = ::FindResourceW(module, MAKEINTRESOURCEW(templateId), RT_DIALOG);
    CheckWin32(found != nullptr, L"DialogResource");
    const HGLOBAL loaded = ::LoadResource(module, found);
    CheckWin32(loaded != nullptr, L"DialogResource");
    return {static_cast<const std::byte*>(::LockResource(loaded)), ::SizeofResource(module, found)};
}

void RegisterFormClass(const wchar_t* name) noexcept
{
    WNDCLASSW windowClass{};
    windowClass.lpfnWndProc = ::DefDlgProcW;
    windowClass.cbWndExtra = DLGWINDOWEXTRA;
    windowClass.hInstance = Library::Module();
    windowClass.hCursor = ::LoadCursorW(nullptr, IDC_ARROW);
    windowClass.lpszClassName = name;
    ::RegisterClassW(&windowClass); // a second form of the same name shares the class
}

// Makes the library's manifest count, and with it the current look of the controls, whatever program the host is.
class LibraryManifest
{
public:
    LibraryManifest() noexcept
        : m_context{Load()}, m_active{m_context != INVALID_HANDLE_VALUE && ::ActivateActCtx(m_context, &m_cookie)}
    {}
    LibraryManifest(const LibraryManifest&) = delete;
    LibraryManifest& operator=(const LibraryManifest&) = delete;
    ~LibraryManifest()
    {
        if (m_active) ::DeactivateActCtx(0, m_cookie);
        if (m_context != INVALID_HANDLE_VALUE) ::ReleaseActCtx(m_context);
    }

private:
    static HANDLE Load() noexcept
    {
        ACTCTXW context{};
        context.cbSize = sizeof context;
        context.dwFlags = ACTCTX_FLAG_HMODULE_VALID | ACTCTX_FLAG_RESOURCE_NAME_VALID;
        context.hModule = Library::Module();
        context.lpResourceName = MAKEINTRESOURCEW(IDR_MANIFEST);
        return ::CreateActCtxW(&context);
    }

    HANDLE m_context;
    ULONG_PTR m_cookie = 0;
    bool m_active;
};

// A status bar finds its place and height by itself when it is made; from then on it moves as the other controls do.
void ReleaseStatusBar(HWND form) noexcept
{
    const HWND bar = ::FindWindowExW(form, nullptr, STATUSCLASSNAMEW, nullptr);
    if (bar == nullptr) return;
    ::SetWindowLongPtrW(bar, GWL_STYLE, ::GetWindowLongPtrW(bar, GWL_STYLE) | CCS_NORESIZE | CCS_NOPARENTALIGN);
}

Box BoxOf(const RECT& place) noexcept { return {place.left, place.top, place.right, place.bottom}; }

Box PlaceOf(HWND window) noexcept
{
    RECT place{};
    ::GetWindowRect(window, &place);
    return BoxOf(place);
}

} // namespace

HWND CreateFormWindow(const wchar_t* name, int templateId, HWND owner, DLGPROC procedure, LPARAM argument)
{
    const LibraryManifest manifest;
    const INITCOMMONCONTROLSEX controls{sizeof controls, ICC_STANDARD_CLASSES | ICC_BAR_CLASSES | ICC_TREEVIEW_CLASSES |
                                                             ICC_PROGRESS_CLASS};
    ::InitCommonControlsEx(&controls);
    RegisterFormClass(name);
    const auto dialogTemplate = WithFont(DialogResource(templateId), MessageFont());
    const HWND window = ::CreateDialogIndirectParamW(
        Library::Module(), reinterpret_cast<LPCDLGTEMPLATEW>(dialogTemplate.data()), owner, procedure, argument);
    CheckWin32(window != nullptr, L"CreateFormWindow");
    ReleaseStatusBar(window);
    FitEntryHeights(window);
    return window;
}

HWND CreateTooltipWindow(HWND form) noexcept
{
    const LibraryManifest manifest;
    return ::CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX,
                             CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, form, nullptr, nullptr,
                             nullptr);
}

std::wstring WindowText(HWND window)
{
    std::wstring text(static_cast<std::size_t>(::GetWindowTextLengthW(window)) + 1, L'\0');
    text.resize(static_cast<std::size_t>(::GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
    return text;
}

void ForgetFormClass(const wchar_t* name) noexcept { ::UnregisterClassW(name, Library::Module()); }

Box WorkAreaFor(HWND window) noexcept
{
    const HWND owner = ::GetWindow(window, GW_OWNER);
    MONITORINFO monitor{};
    monitor.cbSize = sizeof monitor;
    ::GetMonitorInfoW(::MonitorFromWindow(owner != nullptr ? owner : window, MONITOR_DEFAULTTONEAREST), &monitor);
    return BoxOf(monitor.rcWork);
}

void MoveOntoScreen(HWND window, FormPlace place) noexcept
{
    const HWND owner = ::GetWindow(window, GW_OWNER);
    const Box work = WorkAreaFor(window);
    const bool showsOwner = ::IsWindowVisible(owner) && !::IsIconic(owner);
    const Box own = PlaceOf(window);
    const Box around = place == FormPlace::Own ? own : showsOwner ? PlaceOf(owner) : work;
    const Box moved = PlaceInMiddle(own.Size(), around, work);
    ::SetWindowPos(window, nullptr, moved.left, moved.top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

} // namespace corvane
