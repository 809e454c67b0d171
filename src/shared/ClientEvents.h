// The document's own macros around a save, and the server's words after one.
#pragma once

#include <string>

namespace corvane
{

class HostDocument;

// Whether the document's save macros are to run: never where the policy forbids them, else its own switch or the host
// decides, then the server's setting.
[[nodiscard]] bool ClientEventsEnabled(const HostDocument& document);

// Run the document's macro before a save and after a recorded one. Every failure is ignored.
void RunBeforeSaveEvent(const HostDocument& document) noexcept;
void RunAfterSaveEvent(const HostDocument& document) noexcept;

// Shows what the server's answer to a recorded version says. "CANCEL" when the save counts as cancelled, else empty.
std::wstring ProcessSaveResult(const std::wstring& sResult);

} // namespace corvane
