// The formats in which a host saves.
#pragma once

#include <string>

#include "base/HostFacts.h"

namespace host
{

// What kind of file a format is.
enum class Container
{
    Package,  // Open XML
    Compound, // the binary formats
    Message,  // a mail item in a compound file
};

// A format that a host saves in, by the number of its own enumeration.
struct SaveFormat
{
    long number;
    const wchar_t* extension;
    Container container;
    const char* type = nullptr; // the content type of a package's main part
    int firstVersion = 0;
    int lastVersion = 99;
    bool isTemplate = false;
};

constexpr long kUnicodeMessage = 9;

// Throws Error when this version of the host does not write the format.
[[nodiscard]] const SaveFormat& FormatOfNumber(HostKind host, long number, int version);

// What the version saves in when it is not told a format.
[[nodiscard]] const SaveFormat& DefaultFormat(HostKind host, int version);

// The format of an existing file.
[[nodiscard]] const SaveFormat& FormatOfFile(HostKind host, const std::wstring& path, bool compound, int version);

// Whether the host would save under this extension in some format.
[[nodiscard]] bool IsKnownExtension(HostKind host, const std::wstring& extension);

} // namespace host
