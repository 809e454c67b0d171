// Title bars of forms.
#pragma once

#include <windows.h>

#include <string>

namespace corvane
{

// Whether the title bar has room for all of this text.
[[nodiscard]] bool CaptionFits(HWND form, const std::wstring& text);

// Where the form's frame has its title bar, in the form's client coordinates.
[[nodiscard]] RECT CaptionPlace(HWND form) noexcept;

} // namespace corvane
