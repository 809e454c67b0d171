#include "platform/XmlProlog.h"

namespace corvane
{
namespace
{

// Drops a construct from its opener, with which the text starts, to its end mark; false when the mark is not there. The
// two share no character: "<!-->" only begins a comment.
bool Drop(std::wstring_view& text, std::wstring_view opener, std::wstring_view end) noexcept
{
    const auto position = text.find(end, opener.size());
    if (position == std::wstring_view::npos) return false;
    text.remove_prefix(position + end.size());
    return true;
}

} // namespace

bool DeclaresDocumentType(std::wstring_view text) noexcept
{
    constexpr std::wstring_view kComment = L"<!--";
    constexpr std::wstring_view kInstruction = L"<?";
    while (!text.empty()) {
        const auto markup = text.find(L'<');
        if (markup == std::wstring_view::npos) return false;
        text.remove_prefix(markup);
        if (text.starts_with(kComment)) {
            if (!Drop(text, kComment, L"-->")) return false;
        } else if (text.starts_with(kInstruction)) {
            if (!Drop(text, kInstruction, L"?>")) return false;
        } else {
            return text.starts_with(L"<!");
        }
    }
    return false;
}

} // namespace corvane
