// Names of controls for screen readers.
#pragma once

#include <windows.h>

#include <string>

namespace corvane
{

// Gives a control a name of its own in place of the one that readers derive from its text or its label; an empty name
// takes that back. Where the system cannot annotate windows, the derived name stays.
void NameForReaders(HWND control, const std::wstring& name) noexcept;

} // namespace corvane
