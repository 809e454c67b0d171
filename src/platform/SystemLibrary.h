// Libraries of the system that are loaded when they are first needed.
#pragma once

#include <windows.h>

namespace corvane
{

// Loads a library from the system's folder and from nowhere else, on every version of Windows; null when it cannot be
// loaded, with the system's error. It stays loaded.
[[nodiscard]] HMODULE LoadSystemLibrary(const wchar_t* name) noexcept;

// Has the process look for libraries that are named without a path in the system's folder alone; where Windows 7 lacks
// the update that can do this, at least not in the current folder. Libraries that the program links come earlier.
void SearchSystemFolderOnly() noexcept;

// Converts to a pointer to a function that a system library exports, and throws the system's error where it does not.
class SystemFunction
{
public:
    SystemFunction(const wchar_t* library, const char* name);

    template<class Function>
    operator Function*() const noexcept // NOLINT(google-explicit-constructor): the pointer's type is asked for
    {
        return reinterpret_cast<Function*>(reinterpret_cast<void*>(m_address));
    }

private:
    FARPROC m_address = nullptr;
};

} // namespace corvane
