// What may stand before the root element of an XML text that comes from outside.
#pragma once

#include <string_view>

namespace corvane
{

// True when the text declares a document type (and with it could declare entities) before its root element. Such a
// text is not given to the parser: versions of it differ in what they would fetch or expand.
[[nodiscard]] bool DeclaresDocumentType(std::wstring_view text) noexcept;

} // namespace corvane
