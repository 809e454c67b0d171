// Documents of the binary formats.
#pragma once

#include <string>

#include "base/HostFacts.h"
#include "package/DocumentContents.h"

namespace host
{

// A document of the binary formats: its summary and its custom properties, and as much of the host's own stream as
// tells what it is. The text itself is not written: the stand-in shows the title only. Both throw Error when
// the storage fails.
[[nodiscard]] DocumentContents ReadCompoundFile(const std::string& bytes);
[[nodiscard]] std::string WriteCompoundFile(HostKind host, bool isTemplate, const DocumentContents& contents);

} // namespace host
