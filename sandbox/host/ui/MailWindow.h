// The window of a mail item.
#pragma once

#include "objects/Companions.h"
#include "ui/Theme.h"

namespace host
{

// Shows mail items as a mail program does: recipients, subject and body, in a window over the host's that does not take
// the focus. A new item takes the place of the one before.
class MailWindow
{
public:
    explicit MailWindow(HWND owner) : m_owner{owner} {}
    MailWindow(const MailWindow&) = delete;
    MailWindow& operator=(const MailWindow&) = delete;
    ~MailWindow() { Close(); }

    void Show(const MailFields& mail);

private:
    void Close();
    // Takes its height off the area's top.
    void AddRow(RECT& area, const wchar_t* label, const std::wstring& text, int height);
    void AddControl(DWORD extendedStyle, const wchar_t* type, const std::wstring& text, DWORD style, const RECT& place);

    HWND m_owner;
    HWND m_window = nullptr;
    Theme m_theme;
};

} // namespace host
