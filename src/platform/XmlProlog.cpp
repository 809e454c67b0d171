#include "platform/XmlProlog.h"

namespace corvane
{
namespace
{

// Drops everything up to and including the end mark; false when the mark is not there.
bool DropThrough(std::wstring_view& text, std::wstring_view end) noexcept
{
    const auto position = text.find(end);
    if (position == std::wstring_view::npos) return false;
    text.remove_prefix(position + end.size());
    return true;
}

} // namespace

bool DeclaresDocumentType(std::wstring_view text) noexcept
{
    while (!text.empty()) {
        const auto markup = text.find(L'<');
        if (markup == std::wstring_view::npos) return false;
        text.remove_prefix(markup);
        if (text.starts_with(L"<!--")) {
            if (!DropThrough(text, L"-->")) return false;
        } else if (text.starts_with(L"<?")) {
            if (!DropThrough(text, L"?>")) return false;
        } else {
            return text.starts_with(L"<!");
        }
    }
    return false;
}

} // namespace corvane
