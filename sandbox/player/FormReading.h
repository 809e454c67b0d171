#pragma once

#include <string>

#include <windows.h>

namespace host
{

// Both are for the user-interface thread.

// The name that a screen reader gets for the control.
[[nodiscard]] std::wstring SpokenName(HWND control);

// What would stop a user without a mouse or without sight: two controls with one access key, or an input without a
// name. Empty when all is well.
[[nodiscard]] std::wstring ReadingProblem(HWND form);

} // namespace host
