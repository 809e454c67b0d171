// Texts as users compare and read them.
#pragma once

#include "platform/Utf8.h"

#include <string>
#include <string_view>
#include <type_traits>

namespace host
{

// UTF-8 to and from the system's wide text.
[[nodiscard]] inline std::wstring Widen(std::string_view text) { return corvane::FromUtf8(text); }
[[nodiscard]] inline std::string Narrow(std::wstring_view text) { return corvane::ToUtf8(text); }

// Whether the texts are the same but for upper and lower case.
[[nodiscard]] bool SameText(std::wstring_view a, std::wstring_view b);

// The text with the other in every place of the mark.
template<class Text, class View = std::basic_string_view<typename Text::value_type>>
[[nodiscard]] Text Replaced(Text text, std::type_identity_t<View> mark, std::type_identity_t<View> by)
{
    for (std::size_t at = text.find(mark); at != Text::npos; at = text.find(mark, at + by.size()))
        text.replace(at, mark.size(), by);
    return text;
}

// A caption as a user reads it: without the mark of its access key, and one "&" for two.
[[nodiscard]] std::wstring WithoutMark(std::wstring caption);

} // namespace host
