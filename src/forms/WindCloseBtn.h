// The close button of a window, taken out of use while the window works.
#pragma once

#include <windows.h>

namespace corvane
{

// Enables or disables the close button and the Close entry of a window's system menu. False when the change was made,
// true when the handle is no window.
bool EnableCloseButton(HWND window, bool enable) noexcept;

} // namespace corvane
