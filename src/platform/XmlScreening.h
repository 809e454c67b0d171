// What an XML text that comes from outside must not hold.
#pragma once

#include <string_view>

namespace corvane
{

// False when the text must not be given to the parser: it declares a document type (and with it could declare
// entities), of which versions of the parser differ in what they would fetch or expand; one of its elements has more
// than 4096 attributes, which parsers compare with each other one by one: tens of thousands take minutes; or more than
// 256 elements lie in each other, for each of which a parser may take another piece of the host's stack. Texts that are
// not well-formed are left to the parser, or are unfit already.
[[nodiscard]] bool IsFitToParse(std::wstring_view text) noexcept;

} // namespace corvane
