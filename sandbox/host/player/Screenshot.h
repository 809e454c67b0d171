#pragma once

#include <string>

namespace host
{

// Writes the whole screen as a PNG. Throws AutomationError when the screen cannot be read or the file not written.
// COM must be initialised on the calling thread.
void SaveScreenshot(const std::wstring& path);

} // namespace host
