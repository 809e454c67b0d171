#include "ui/MailWindow.h"

namespace host
{
namespace
{

constexpr wchar_t kClassName[] = L"CorvaneMailWindow";

// Lengths at 96 dots an inch.
constexpr SIZE kSize = {680, 330};
constexpr int kMargin = 12;
constexpr int kLabelWidth = 68;
constexpr int kLineHeight = 22;
constexpr int kTeamHeight = 36; // a team's addresses wrap
constexpr int kGap = 8;

// What the window shows of a field: wrapping a line of many thousand addresses takes an edit control minutes.
std::wstring FieldOf(const MailFields& mail, const wchar_t* name)
{
    constexpr std::size_t kMost = 4000;
    const auto found = mail.find(name);
    if (found == mail.end()) return {};
    return found->second.size() > kMost ? found->second.substr(0, kMost) + L"\x2026" : found->second;
}

} // namespace

void MailWindow::Show(const MailFields& mail)
{
    RegisterWindowClass(kClassName, ::DefWindowProcW);
    Close();
    RECT below{};
    ::GetWindowRect(m_owner, &below);
    const SIZE size = {m_theme.Scale(kSize.cx), m_theme.Scale(kSize.cy)};
    const std::wstring subject = FieldOf(mail, L"Subject");
    m_window =
        ::CreateWindowExW(0, kClassName, (subject + L" - Message").c_str(), WS_CAPTION | WS_SYSMENU | WS_CLIPCHILDREN,
                          (below.left + below.right - size.cx) / 2, (below.top + below.bottom - size.cy) / 2, size.cx,
                          size.cy, m_owner, nullptr, ::GetModuleHandleW(nullptr), nullptr);
    RECT area{};
    ::GetClientRect(m_window, &area);
    ::InflateRect(&area, -m_theme.Scale(kMargin), -m_theme.Scale(kMargin));
    AddRow(area, L"To", FieldOf(mail, L"To"), kTeamHeight);
    AddRow(area, L"Subject", subject, kLineHeight);
    AddControl(WS_EX_CLIENTEDGE, L"EDIT", FieldOf(mail, L"Body"), ES_MULTILINE | ES_READONLY | WS_VSCROLL, area);
    ::ShowWindow(m_window, SW_SHOWNOACTIVATE);
}

void MailWindow::Close()
{
    if (::IsWindow(m_window)) ::DestroyWindow(m_window);
    m_window = nullptr;
}

void MailWindow::AddRow(RECT& area, const wchar_t* label, const std::wstring& text, int height)
{
    const LONG start = area.left + m_theme.Scale(kLabelWidth);
    const LONG bottom = area.top + m_theme.Scale(height);
    AddControl(0, L"STATIC", label, SS_LEFT | SS_CENTERIMAGE,
               {area.left, area.top, start, area.top + m_theme.Scale(kLineHeight)});
    AddControl(WS_EX_CLIENTEDGE, L"EDIT", text, ES_MULTILINE | ES_READONLY, {start, area.top, area.right, bottom});
    area.top = bottom + m_theme.Scale(kGap);
}

void MailWindow::AddControl(DWORD extendedStyle, const wchar_t* type, const std::wstring& text, DWORD style,
                            const RECT& place)
{
    const HWND control = ::CreateWindowExW(extendedStyle, type, text.c_str(), WS_CHILD | WS_VISIBLE | style, place.left,
                                           place.top, place.right - place.left, place.bottom - place.top, m_window,
                                           nullptr, ::GetModuleHandleW(nullptr), nullptr);
    ::SendMessageW(control, WM_SETFONT, reinterpret_cast<WPARAM>(m_theme.Normal()), FALSE);
}

} // namespace host
