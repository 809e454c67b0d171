#pragma once

#include <string>

#include "package/DocumentContents.h"

namespace host
{

// The title as Rich Text, with the summary and the custom properties in their groups.
[[nodiscard]] std::string WriteRichText(const DocumentContents& contents);

// The title as the one value of a table, in the machine's code page. Nothing else has a place there.
[[nodiscard]] std::string WriteValues(const DocumentContents& contents);

} // namespace host
