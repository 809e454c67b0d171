#pragma once

#include <string>

#include "automation/Errors.h"
#include "base/HostFacts.h"

namespace host
{

// What a host does not do for a caller.
enum class Refusal
{
    NoDocument,
    Closed,
    ReadOnly,
    Final,
    UnknownFormat,
    WrongExtension,
    WrongName,
    Locked,
    DiskFull,
    Denied,
    NotFound,
    NotSaved,
    NotRead,
    NoMacro,
    MacroFailed,
};

// Throws Error with the host's own number and text. The subject is the path, the number or the name that it
// is about.
[[noreturn]] void Refuse(HostKind host, Refusal refusal, const std::wstring& subject = {});

// What the system's error for a file means to a host that saves or opens it.
[[nodiscard]] Refusal RefusalOfSystemError(DWORD error);

} // namespace host
