// Message boxes and the window they belong to.
#pragma once

#include <windows.h>

#include <string>

namespace corvane
{

// Message-box styles by the numbers the interface gives them; icons and buttons add up.
inline constexpr UINT kStylePlain = MB_OK;
inline constexpr UINT kStyleOkCancel = MB_OKCANCEL;
inline constexpr UINT kStyleCritical = MB_ICONHAND;           // 16
inline constexpr UINT kStyleExclamation = MB_ICONEXCLAMATION; // 48
inline constexpr UINT kStyleInformation = MB_ICONASTERISK;    // 64

// The title of every message that has none of its own.
void SetApplicationTitle(std::wstring title);
[[nodiscard]] const std::wstring& ApplicationTitle() noexcept;

// The window that the host tells as its own, or null where it tells none: then it is the thread's active window. Forms
// and messages that no form of ours owns belong to it.
void SetHostWindow(HWND told) noexcept;

// The host's window; null while there is none. Never a form of ours: what a passing one owned would go with it.
[[nodiscard]] HWND HostWindow() noexcept;

// Shows text, as much of it as MessageText has room for, in a message box that belongs to the topmost form, or to the
// host. Without a title of its own it carries the application title. Returns the button pressed (IDOK, IDCANCEL).
int ShowMessage(const std::wstring& text, UINT style, const std::wstring& title = {});

} // namespace corvane
