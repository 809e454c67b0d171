// What the user and the trace get to see of an error that nobody handled.
#pragma once

#include "platform/Error.h"

#include <string>

namespace corvane
{

// The text of the critical message for an error.
[[nodiscard]] inline std::wstring ErrorReportText(const Error& error)
{
    return L"ERROR\r\nNumber: " + std::to_wstring(error.Number()) + L"\r\nDescription: " + error.Description() +
           L"\r\nSource: " + error.Source();
}

// Hears of every error that is shown, after the trace and before the user; nobody does at first.
using ErrorListener = void (*)(const Error& error) noexcept;
void SetErrorListener(ErrorListener listener) noexcept;

// Lets the process's trace and the user hear of what procedures do: every scope is traced, and every error that reaches
// the edge is traced and shown. Takes effect for the life of the library.
void WatchProcedures() noexcept;

} // namespace corvane
