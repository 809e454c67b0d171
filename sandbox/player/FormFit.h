// Whether a form's layout fits.
#pragma once

#include <string>

#include <windows.h>

namespace corvane::player
{

// What a user would see wrong in a form's layout: a text cut off (an ellipsis counts only where a tooltip carries the
// whole text), controls over each other, a control outside the form, the form outside the screen's work area. Empty
// when all is well. What is scrolled out of view counts as inside. Of a message box, only the places are looked at.
[[nodiscard]] std::wstring FitProblem(HWND form);

} // namespace corvane::player
