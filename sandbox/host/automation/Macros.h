// Macros of a presentation, played by the system's script engine in place of the host's own language.
#pragma once

#include <string>

#include <windows.h>

#include <oaidl.h>

namespace host
{

class ClassLoader;

// Runs a procedure of the script; "Application" in it is the object given, and it makes
// objects of the user's classes. Its message boxes belong to the window.
// Throws Error for what the script, or an object that it calls, raises.
void RunMacro(const std::wstring& script, const std::wstring& procedure, IDispatch& application, ClassLoader& classes,
              HWND window);

} // namespace host
