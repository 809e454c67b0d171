// Moves controls of a form when a row of it comes or goes.
#pragma once

#include <windows.h>

#include <vector>

namespace corvane
{

// A control's rectangle in the client coordinates of its form.
[[nodiscard]] RECT ControlPlace(HWND control) noexcept;

// The controls of a form in tab order.
[[nodiscard]] std::vector<HWND> ControlsOf(HWND form) noexcept;

// The height of a control, or of a form with its frame.
[[nodiscard]] int HeightOf(HWND window) noexcept;

// Moves every control of the form whose top lies at or below y by delta pixels.
void ShiftBelow(HWND form, int y, int delta) noexcept;

// Makes a control, or the form itself, taller by delta pixels.
void Grow(HWND window, int delta) noexcept;

// The resolution that everything on the screen is laid out for, in dots per inch: 96 at 100 %.
[[nodiscard]] int ScreenDotsPerInch() noexcept;

// A length in twips (1/1440 inch) as pixels of the screen.
[[nodiscard]] int PixelsOfTwips(int twips) noexcept;

} // namespace corvane
