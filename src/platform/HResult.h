// Turns failed HRESULTs and Win32 calls into errors at the call that failed.
#pragma once

#include <windows.h>

#include <string>
#include <string_view>

namespace corvane
{

// Throws Error when the result is a failure; its source is the given procedure, its text the system's message.
void Check(HRESULT result, std::wstring_view source);

// Throws Error with the calling thread's last Win32 error when ok is false.
void CheckWin32(bool ok, std::wstring_view source);

// The system's message for a result, or its hexadecimal value where the system has none.
[[nodiscard]] std::wstring MessageOf(HRESULT result);

} // namespace corvane
