#include "player/Screen.h"

#include <algorithm>

#include <commctrl.h>

namespace corvane::player
{
namespace
{

constexpr UINT kPatience = 1000; // milliseconds

using Windows = std::vector<HWND>;

BOOL CALLBACK AddWindow(HWND window, LPARAM list)
{
    reinterpret_cast<Windows*>(list)->push_back(window);
    return TRUE;
}

// The text that the window writes into the buffer.
std::optional<std::wstring> Answer(HWND window, UINT message, WPARAM wParam)
{
    wchar_t* buffer = AnswerBuffer();
    *buffer = L'\0';
    if (!Ask(window, message, wParam, reinterpret_cast<LPARAM>(buffer))) return std::nullopt;
    buffer[kAnswerLength - 1] = L'\0';
    return buffer;
}

std::optional<std::wstring> ListEntry(HWND list)
{
    const auto chosen = Ask(list, LB_GETCURSEL);
    if (!chosen) return std::nullopt;
    if (*chosen == LB_ERR) return std::wstring{};
    const auto length = Ask(list, LB_GETTEXTLEN, static_cast<WPARAM>(*chosen));
    if (!length || *length < 0 || static_cast<std::size_t>(*length) >= kAnswerLength) return std::nullopt;
    return Answer(list, LB_GETTEXT, static_cast<WPARAM>(*chosen));
}

std::wstring Described(HWND window, const std::optional<std::wstring>& text)
{
    return ClassOf(window) + L" \"" + text.value_or(L"(does not answer)") + L"\"" +
           (::IsWindowEnabled(window) ? L"\n" : L" disabled\n");
}

} // namespace

std::optional<LRESULT> Ask(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    DWORD_PTR result = 0;
    if (!::SendMessageTimeoutW(window, message, wParam, lParam, SMTO_ABORTIFHUNG, kPatience, &result))
        return std::nullopt;
    return static_cast<LRESULT>(result);
}

wchar_t* AnswerBuffer()
{
    static wchar_t buffer[kAnswerLength];
    return buffer;
}

bool IsOwn(HWND window)
{
    DWORD process = 0;
    ::GetWindowThreadProcessId(window, &process);
    return process == ::GetCurrentProcessId();
}

std::vector<HWND> OwnWindows()
{
    Windows windows;
    ::EnumWindows(AddWindow, reinterpret_cast<LPARAM>(&windows));
    std::erase_if(windows, [](HWND window) { return !IsOwn(window); });
    return windows;
}

std::vector<HWND> VisibleWindows()
{
    Windows windows = OwnWindows();
    std::erase_if(windows, [](HWND window) { return !::IsWindowVisible(window); });
    return windows;
}

std::vector<HWND> ChildrenOf(HWND window)
{
    Windows children;
    ::EnumChildWindows(window, AddWindow, reinterpret_cast<LPARAM>(&children));
    return children;
}

HWND FindForm(const std::wstring& className)
{
    const auto windows = VisibleWindows();
    const auto found = std::ranges::find(windows, className, ClassOf);
    return found == windows.end() ? nullptr : *found;
}

HWND FindControl(HWND form, int id)
{
    for (HWND child : ChildrenOf(form))
        if (::GetDlgCtrlID(child) == id) return child;
    return nullptr;
}

std::wstring ClassOf(HWND window)
{
    wchar_t name[128] = L"";
    ::GetClassNameW(window, name, static_cast<int>(std::size(name)));
    return name;
}

bool IsClass(HWND window, const wchar_t* name) { return ::lstrcmpiW(ClassOf(window).c_str(), name) == 0; }

std::optional<std::wstring> WindowText(HWND window) { return Answer(window, WM_GETTEXT, kAnswerLength); }

std::optional<std::wstring> ControlText(HWND control)
{
    if (IsClass(control, WC_LISTBOXW)) return ListEntry(control);
    if (IsClass(control, STATUSCLASSNAMEW)) return PartText(control, 0);
    if (IsClass(control, WC_TREEVIEWW)) return ChosenPath(control);
    if (IsClass(control, PROGRESS_CLASSW)) {
        const auto position = Ask(control, PBM_GETPOS);
        return position ? std::optional{std::to_wstring(*position)} : std::nullopt;
    }
    return WindowText(control);
}

std::optional<std::wstring> PartText(HWND statusBar, int part)
{
    return Answer(statusBar, SB_GETTEXTW, static_cast<WPARAM>(part)); // a part holds 65535 letters at most
}

std::wstring WithoutMarks(std::wstring caption)
{
    std::erase(caption, L'&');
    return caption;
}

bool IsChecked(HWND box) { return Ask(box, BM_GETCHECK).value_or(BST_INDETERMINATE) == BST_CHECKED; }

bool IsDefaultButton(HWND form, HWND button)
{
    const auto answer = Ask(form, DM_GETDEFID);
    if (answer && HIWORD(*answer) == DC_HASDEFID && LOWORD(*answer) == ::GetDlgCtrlID(button)) return true;
    return (::GetWindowLongPtrW(button, GWL_STYLE) & BS_TYPEMASK) == BS_DEFPUSHBUTTON;
}

HWND FocusOf(DWORD threadId)
{
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    return ::GetGUIThreadInfo(threadId, &info) ? info.hwndFocus : nullptr;
}

std::wstring DescribeScreen()
{
    std::wstring report = L"visible windows:\n";
    for (HWND window : VisibleWindows()) {
        report += L"  " + Described(window, WindowText(window));
        for (HWND child : ChildrenOf(window))
            if (::IsWindowVisible(child))
                report += L"    " + ControlNameOf(::GetDlgCtrlID(child)) + L" " + Described(child, ControlText(child));
    }
    return report;
}

} // namespace corvane::player
