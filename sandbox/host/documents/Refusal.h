// What hosts refuse to do, each in its own numbers.
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

// What a file that could not be read or written means to a host.
[[nodiscard]] Refusal RefusalOf(const Error& failure);

} // namespace host
