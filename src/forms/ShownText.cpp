#include "forms/ShownText.h"

#include <algorithm>
#include <vector>

namespace corvane
{
namespace
{

constexpr wchar_t kEllipsis = L'\x2026';

constexpr bool IsFirstSurrogate(wchar_t letter) noexcept { return letter >= 0xD800 && letter < 0xDC00; }

// Where a text may be cut: before and after each of its letters.
std::vector<std::size_t> Cuts(const std::wstring& text)
{
    std::vector<std::size_t> cuts{0};
    for (std::size_t at = 0; at < text.size();) {
        const bool isPair = at + 1 < text.size() && (text[at] == L'&' || IsFirstSurrogate(text[at]));
        at += isPair ? 2 : 1;
        cuts.push_back(at);
    }
    return cuts;
}

std::wstring CutAt(const std::wstring& text, std::size_t length)
{
    while (length > 0 && text[length - 1] == L' ')
        --length;
    return text.substr(0, length) + kEllipsis;
}

} // namespace

std::wstring WithoutAccessKeys(const std::wstring& text)
{
    std::wstring shown;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] == L'&' && ++at == text.size()) break;
        shown += text[at];
    }
    return shown;
}

std::wstring Shortened(const std::wstring& text, const std::function<bool(const std::wstring&)>& fits)
{
    if (fits(text)) return text;
    const auto cuts = Cuts(text);
    const auto tooLong = std::partition_point(cuts.begin() + 1, cuts.end(),
                                              [&](std::size_t length) { return fits(CutAt(text, length)); });
    return CutAt(text, *(tooLong - 1));
}

} // namespace corvane
