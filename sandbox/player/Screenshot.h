// Pictures of the screen.
#pragma once

#include <string>

#include <windows.h>

namespace corvane::player
{

// Writes a window as it shows on the screen, or the whole screen for null, as a PNG. Throws Error when the
// screen cannot be read or the file not written. COM must be initialised on the calling thread.
void SaveScreenshot(const std::wstring& path, HWND window);

} // namespace corvane::player
