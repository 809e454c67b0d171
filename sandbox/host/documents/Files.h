// Files of documents: how they are read, written, spoilt and held open, and the parts of their paths.
#pragma once

#include "platform/Owners.h"

#include <string>
#include <string_view>

namespace host
{

using corvane::UniqueFile;

// How a written file is spoilt, to show what an add-in makes of it.
enum class SaveFault
{
    None,
    Empty,   // no bytes at all
    Zeros,   // the right length, all zero
    Growing, // half of it in zeros first, the real bytes 2.5 s later
    Locked,  // another program has the file open
    Full,    // there is no room
    Denied,  // the folder may not be written to
    Gone,    // right after the save the file is deleted
    Refused, // nothing is written, and nobody says so
    Held,    // right after the save another program opens it for itself alone
};

[[nodiscard]] SaveFault SaveFaultNamed(std::string_view name);

// These throw Error with the path and the system's reason, its number the system's code as an HRESULT. Paths may be
// longer than the system's usual limit.
[[nodiscard]] std::string ReadWholeFile(const std::wstring& path);
void WriteWholeFile(const std::wstring& path, std::string_view bytes);

// What is returned keeps others from the file where the fault asks for it; else it is not open.
UniqueFile WriteDocumentFile(const std::wstring& path, const std::string& bytes, SaveFault fault);

// Holds the file as the real host holds the document that it shows: others may read it, but not write to it.
[[nodiscard]] UniqueFile HoldOpenDocument(const std::wstring& path, bool readOnly);

[[nodiscard]] bool IsWriteProtected(const std::wstring& path);

// Whether the last part of the path is a name that the system can give to a file: no device's name, no reserved letter.
[[nodiscard]] bool IsUsableName(const std::wstring& path);

[[nodiscard]] std::wstring FullPath(const std::wstring& path);
[[nodiscard]] std::wstring FileName(const std::wstring& path);
[[nodiscard]] std::wstring FolderOf(const std::wstring& path);  // without a closing backslash
[[nodiscard]] std::wstring Extension(const std::wstring& path); // in lower case, without the point

} // namespace host
