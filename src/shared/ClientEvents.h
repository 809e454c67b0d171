// The document's own macros around a save, and the server's words after one.
#pragma once

#include "platform/LateBound.h"

#include <string>

namespace corvane
{

// Whether the active document's save macros are to run: its own switch or the host decides, then the server's setting.
// Throws the host's error when it does not tell its name or version.
[[nodiscard]] bool ClientEventsEnabled(const LateBound& oApplication);

// Run the document's macro before a save and after a recorded one. Every failure is ignored.
void RunBeforeSaveEvent(const LateBound& oApplication) noexcept;
void RunAfterSaveEvent(const LateBound& oApplication) noexcept;

// Shows what the server's answer to a recorded version says. "CANCEL" when the save counts as cancelled, else empty.
std::wstring ProcessSaveResult(const std::wstring& sResult);

} // namespace corvane
