// Text boxes that only show.
#pragma once

#include <windows.h>

namespace corvane
{

// The part of a text box of one line that its text has, in the box's client area.
[[nodiscard]] RECT TextRoomOf(HWND box) noexcept;

// Lets the box end a text that it has no room for in an ellipsis while the keyboard is elsewhere; with the keyboard it
// shows the text itself and scrolls. Its text stays whole for whoever reads it.
void EndInEllipsis(HWND box) noexcept;

} // namespace corvane
