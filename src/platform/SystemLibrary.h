// Libraries of the system that the add-in loads when it first needs them.
#pragma once

#include <windows.h>

namespace corvane
{

// Loads a library from the system's folder and from nowhere else, on every version of Windows; null when it cannot be
// loaded, with the system's error. It stays loaded.
[[nodiscard]] HMODULE LoadSystemLibrary(const wchar_t* name) noexcept;

} // namespace corvane
