// What forms do with their controls.
#include "forms/Form.h"
#include "forms/FormWindow.h"

#include <commctrl.h>

#include <algorithm>

namespace corvane
{
namespace
{

constexpr UINT_PTR kTimer = 1;

} // namespace

std::wstring Form::Text(int control) const { return WindowText(Control(control)); }

void Form::SetText(int control, const std::wstring& text, const std::wstring& more) const
{
    m_tips.SetText(Control(control), text, more);
}

void Form::SetCaption(const std::wstring& text)
{
    m_caption = text;
    m_tips.SetText(m_window, m_caption);
}

void Form::Enable(int control, bool enabled) const noexcept
{
    const HWND window = Control(control);
    if ((::IsWindowEnabled(window) != FALSE) == enabled) return;
    // The keyboard must not stay in a control that goes out of use.
    const HWND focus = ::GetFocus();
    const bool holdsFocus = focus == window || ::IsChild(window, focus);
    if (!enabled && holdsFocus) ::SendMessageW(m_window, WM_NEXTDLGCTL, 0, FALSE);
    ::EnableWindow(window, enabled);
}

void Form::Enable(std::span<const int> controls, bool enabled) const noexcept
{
    const int focused = FocusedControl();
    for (const int control : controls)
        if (control != focused) Enable(control, enabled);
    if (std::ranges::find(controls, focused) != controls.end()) Enable(focused, enabled);
}

void Form::SetFocusTo(int control) const noexcept
{
    const HWND window = Control(control);
    DWORD start = 0;
    DWORD end = 0;
    ::SendMessageW(window, EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
    ::SendMessageW(m_window, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(window), TRUE);
    // The dialog manager has selected all of a text box; the caret stays where it was.
    ::SendMessageW(window, EM_SETSEL, start, static_cast<LPARAM>(end));
    ::SendMessageW(window, EM_SCROLLCARET, 0, 0);
}

int Form::FocusedControl() const noexcept
{
    HWND focus = ::GetFocus();
    while (focus != nullptr && ::GetParent(focus) != m_window)
        focus = ::GetAncestor(focus, GA_PARENT);
    return focus == nullptr ? 0 : ::GetDlgCtrlID(focus);
}

void Form::PutBehindLabel(int control, int label) const noexcept
{
    ::SetWindowPos(Control(control), Control(label), 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

bool Form::IsShown(int control) const noexcept
{
    return (::GetWindowLongPtrW(Control(control), GWL_STYLE) & WS_VISIBLE) != 0;
}

void Form::Show(int control, bool shown) const noexcept { ::ShowWindow(Control(control), shown ? SW_SHOWNA : SW_HIDE); }

bool Form::IsChecked(int control) const noexcept { return ::IsDlgButtonChecked(m_window, control) == BST_CHECKED; }

void Form::Check(int control, bool checked) const noexcept
{
    ::CheckDlgButton(m_window, control, checked ? BST_CHECKED : BST_UNCHECKED);
}

void Form::SetDefaultButton(int control) const noexcept
{
    ::SendMessageW(m_window, DM_SETDEFID, static_cast<WPARAM>(control), 0);
}

void Form::SetStatus(int statusBar, const std::wstring& text) const noexcept
{
    ::SendMessageW(Control(statusBar), SB_SETTEXTW, 0, reinterpret_cast<LPARAM>(text.c_str()));
    ::UpdateWindow(Control(statusBar));
}

void Form::SetStatusDetail(int statusBar, const std::wstring& text) const
{
    if (Control(statusBar) != nullptr) m_tips.SetStatusDetail(Control(statusBar), text);
}

void Form::SetProgress(int bar, int percent) const noexcept
{
    ::SendMessageW(Control(bar), PBM_SETPOS, static_cast<WPARAM>(percent), 0);
}

void Form::SetFont(int control, HFONT font) const noexcept
{
    ::SendMessageW(Control(control), WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
}

void Form::SetHourglass(bool on) noexcept
{
    m_hourglass = on;
    ::SetCursor(::LoadCursorW(nullptr, on ? IDC_WAIT : IDC_ARROW));
}

void Form::StartTimer(UINT milliseconds) const noexcept { ::SetTimer(m_window, kTimer, milliseconds, nullptr); }

} // namespace corvane
