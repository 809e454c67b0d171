// The message boxes on the screen, read as Screen.h says.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include <windows.h>

namespace corvane::player
{

// The topmost first.
[[nodiscard]] std::vector<HWND> MessageBoxes();

// The box's text as it was given to it, blanks and line breaks included.
[[nodiscard]] std::wstring MessageText(HWND box);
[[nodiscard]] HWND ButtonWithCaption(HWND box, const std::wstring& caption);

// The box's icon: critical, question, exclamation, information or none; nullopt for a picture that is none of these.
[[nodiscard]] std::optional<std::wstring> MessageIcon(HWND box);

} // namespace corvane::player
