// How a form's window comes into being: its window class, its template in the user's font, its place on the screen.
#pragma once

#include <windows.h>

namespace corvane
{

// Makes the hidden window of a template from the library's resources in the user's message font. The window class is
// registered under name. Throws Error.
[[nodiscard]] HWND CreateFormWindow(const wchar_t* name, int templateId, HWND owner, DLGPROC procedure,
                                    LPARAM argument);

// Takes back the window class once its last window is gone.
void ForgetFormClass(const wchar_t* name) noexcept;

// Moves the window to the middle of its owner (of the screen without one), inside the work area of that monitor.
void CentreOnOwner(HWND window) noexcept;

} // namespace corvane
