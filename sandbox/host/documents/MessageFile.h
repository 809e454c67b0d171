// Mail items as files.
#pragma once

#include <string>

#include "package/DocumentContents.h"

namespace host
{

// A mail item as a file, with its Subject, Body, To and CC. Both throw Error when the storage fails.
[[nodiscard]] DocumentContents ReadMessageFile(const std::string& bytes);
[[nodiscard]] std::string WriteMessageFile(bool unicode, const DocumentContents& contents);

} // namespace host
