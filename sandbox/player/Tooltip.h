// The tooltips of a form.
#pragma once

#include <string>

#include <windows.h>

namespace corvane::player
{

// The tooltip that a form has for a control, or, where the control is the form itself, for its title bar; empty without
// one.
[[nodiscard]] std::wstring TipOf(HWND form, HWND control);

// The form's tooltip that is on the screen; empty when there is none.
[[nodiscard]] std::wstring ShownTip(HWND form);

// Puts the mouse over the middle of a control, or of the form's title bar.
void PointAt(HWND form, HWND control);

} // namespace corvane::player
