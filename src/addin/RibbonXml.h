// The ribbon's data as the XML text that the host reads.
#pragma once

#include "addin/RibbonElement.h"

#include <string>

namespace corvane
{

// The text of a document whose root is the given element, all elements in the given namespace. Throws Error.
[[nodiscard]] std::wstring RibbonXmlText(const RibbonElement& root, const std::wstring& namespaceUri);

} // namespace corvane
