// Copies of documents through the system's own interface for objects that live in files.
#pragma once

#include "platform/LateBound.h"

#include <string>

namespace corvane
{

// Writes a copy of a document in its own format; the document stays where it was. Throws Error, number 438 when the
// object is no IPersistFile.
void SavePersistedCopy(const LateBound& document, const std::wstring& path);

} // namespace corvane
