#pragma once

#include <optional>
#include <string>
#include <vector>

#include <windows.h>

namespace host
{

// The message boxes on the screen, the topmost first, read as Screen.h says.
[[nodiscard]] std::vector<HWND> MessageBoxes();

// The box's text as it was given to it, blanks and line breaks included.
[[nodiscard]] std::wstring MessageText(HWND box);
[[nodiscard]] HWND ButtonWithCaption(HWND box, const std::wstring& caption);

// The box's icon: critical, question, exclamation, information or none; nullopt for a picture that is none of these.
[[nodiscard]] std::optional<std::string> MessageIcon(HWND box);

} // namespace host
