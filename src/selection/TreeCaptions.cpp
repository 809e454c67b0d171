#include "selection/TreeCaptions.h"

#include "selection/FilterState.h"
#include "support/Conversions.h"

namespace corvane
{
namespace
{

constexpr std::wstring_view kFilterMark = L"(Filter Active)";

// A text with the customer's words in place of their marks.
std::wstring Filled(std::wstring_view text, const NameLookup& name)
{
    constexpr std::wstring_view kMark = L"<PEN";
    std::wstring filled;
    for (auto mark = text.find(kMark); mark != std::wstring_view::npos; mark = text.find(kMark)) {
        const std::wstring_view behind = text.substr(mark + kMark.size());
        const auto end = behind.find(L'>');
        filled.append(text.substr(0, mark)).append(name(behind.substr(0, end)));
        text = behind.substr(end + 1);
    }
    return filled.append(text);
}

} // namespace

TreeCaptions TreeCaptionsFor(TreeMode mode, const NameLookup& name)
{
    const TreeKind& kind = TreeKindOf(mode);
    return {.serverLabel = EscapeAmpersands(Filled(L"<PENCorvane> Server URL", name)),
            .caption = Filled(kind.caption, name),
            .treeLabel = EscapeAmpersands(Filled(kind.treeLabel, name)),
            .nothingSelected = Filled(kind.nothingSelected, name)};
}

std::wstring WithFilterMark(std::wstring label)
{
    if (label.find(kFilterMark) != std::wstring::npos) return label;
    return label.append(L" ").append(kFilterMark);
}

std::wstring EntryLimitMessage()
{
    const std::wstring limit = std::to_wstring(kEntryLimit);
    return L"There are more than " + limit +
           L" entries in the selection tree.  Please use filtering to reduce the number of entries to fewer than " +
           limit;
}

} // namespace corvane
