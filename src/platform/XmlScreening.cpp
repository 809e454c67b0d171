#include "platform/XmlScreening.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

namespace corvane
{
namespace
{

constexpr std::size_t kMostAttributes = 4096;
constexpr int kDeepest = 256; // the default of the newest parser; older ones have none

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

// How a tag changes the depth of what follows it.
int StepOf(std::wstring_view tag) noexcept
{
    if (tag.starts_with(L"</")) return -1;
    return tag.ends_with(L"/>") ? 0 : 1;
}

} // namespace

bool IsFitToParse(std::wstring_view text) noexcept
{
    constexpr std::wstring_view kEnds[][2] = {{L"<!--", L"-->"}, {L"<![CDATA[", L"]]>"}, {L"<?", L"?>"}};
    int depth = 0;
    for (auto markup = text.find(L'<'); markup != std::wstring_view::npos; markup = text.find(L'<')) {
        text.remove_prefix(markup);
        const std::wstring_view rest = text;
        const auto* construct = std::ranges::find_if(kEnds, [&](const auto& one) { return text.starts_with(one[0]); });
        const bool isTag = construct == std::end(kEnds);
        const bool dropped =
            isTag ? !text.starts_with(L"<!") && DropTag(text) : Drop(text, (*construct)[0], (*construct)[1]);
        if (!dropped) return false;
        if (isTag) depth = std::max(depth + StepOf(rest.substr(0, rest.size() - text.size())), 0);
        if (depth > kDeepest) return false;
    }
    return true;
}

} // namespace corvane
