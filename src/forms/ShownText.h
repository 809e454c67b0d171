// Texts of controls as the user sees them: access-key marks, and what a narrow control shows of a long text.
#pragma once

#include <functional>
#include <string>

namespace corvane
{

// The text without its access-key marks: "&&" is an ampersand, any other "&" marks a key.
[[nodiscard]] std::wstring WithoutAccessKeys(const std::wstring& text);

// The text itself if it fits, otherwise its longest beginning that fits with an ellipsis behind it (the ellipsis alone
// if none does). A doubled "&" and a pair of surrogates stay together.
[[nodiscard]] std::wstring Shortened(const std::wstring& text, const std::function<bool(const std::wstring&)>& fits);

} // namespace corvane
