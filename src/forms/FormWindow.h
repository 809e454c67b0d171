// How a form's window comes into being: its window class, its template in the user's font, its place on the screen.
#pragma once

#include "forms/FormPlacement.h"

#include <windows.h>

#include <string>

namespace corvane
{

// Makes the hidden window of a template from the library's resources in the user's message font. The window class is
// registered under name. Throws Error.
[[nodiscard]] HWND CreateFormWindow(const wchar_t* name, int templateId, HWND owner, DLGPROC procedure,
                                    LPARAM argument);

// Makes the form's tooltip window, which goes with the form; null when the system cannot.
[[nodiscard]] HWND CreateTooltipWindow(HWND form) noexcept;

// Takes back the window class once its last window is gone.
void ForgetFormClass(const wchar_t* name) noexcept;

// The text of a form or of a control.
[[nodiscard]] std::wstring WindowText(HWND window);

enum class FormPlace
{
    OwnersMiddle, // the middle of the screen without an owner that shows
    Own           // where it is
};

// The work area of the monitor that shows the window's owner; the window's own monitor without one.
[[nodiscard]] Box WorkAreaFor(HWND window) noexcept;

// Moves the window inside that work area, as near to the place as it allows.
void MoveOntoScreen(HWND window, FormPlace place) noexcept;

} // namespace corvane
