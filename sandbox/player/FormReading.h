// Whether a form can be read and used without sight or mouse. For the user interface's thread.
#pragma once

#include <string>

#include <windows.h>

namespace corvane::player
{

// The name that a screen reader gets for the control.
[[nodiscard]] std::wstring SpokenName(HWND control);

// What would stop a user without a mouse or without sight: two controls with one access key, or an input without a
// name. Empty when all is well.
[[nodiscard]] std::wstring ReadingProblem(HWND form);

} // namespace corvane::player
