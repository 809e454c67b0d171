#pragma once

#include "package/DocumentContents.h"

namespace host
{

// The smallest Open Document package of this media type, with the document's properties in its meta.xml.
[[nodiscard]] std::string WriteOpenDocument(std::string_view mediaType, const DocumentContents& contents);

} // namespace host
