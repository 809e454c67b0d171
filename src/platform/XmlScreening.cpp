#include "platform/XmlScreening.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

namespace corvane
{
namespace
{

constexpr std::size_t kMostAttributes = 4096;

// Drops a construct from its opener, with which the text starts, to its end mark; false when the mark is not there. The
// two share no character: "<!-->" only begins a comment.
bool Drop(std::wstring_view& text, std::wstring_view opener, std::wstring_view end) noexcept
{
    const auto position = text.find(end, opener.size());
    if (position == std::wstring_view::npos) return false;
    text.remove_prefix(position + end.size());
    return true;
}

// Drops the tag with which the text starts; false when it has too many attributes or no end.
bool DropTag(std::wstring_view& text) noexcept
{
    for (std::size_t attributes = 0; attributes <= kMostAttributes; ++attributes) {
        const auto position = text.find_first_of(L"\"'>");
        if (position == std::wstring_view::npos) return false;
        const wchar_t mark = text[position];
        text.remove_prefix(position + 1);
        if (mark == L'>') return true;
        if (!Drop(text, {}, {&mark, 1})) return false; // the rest of the value
    }
    return false;
}

} // namespace

bool IsFitToParse(std::wstring_view text) noexcept
{
    constexpr std::wstring_view kEnds[][2] = {{L"<!--", L"-->"}, {L"<![CDATA[", L"]]>"}, {L"<?", L"?>"}};
    for (auto markup = text.find(L'<'); markup != std::wstring_view::npos; markup = text.find(L'<')) {
        text.remove_prefix(markup);
        const auto* construct = std::ranges::find_if(kEnds, [&](const auto& one) { return text.starts_with(one[0]); });
        const bool dropped = construct != std::end(kEnds) ? Drop(text, (*construct)[0], (*construct)[1])
                                                          : !text.starts_with(L"<!") && DropTag(text);
        if (!dropped) return false;
    }
    return true;
}

} // namespace corvane
