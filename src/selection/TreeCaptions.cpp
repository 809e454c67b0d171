#include "selection/TreeCaptions.h"

#include "selection/FilterState.h"
#include "support/Conversions.h"

namespace corvane
{
namespace
{

constexpr std::wstring_view kFilterMark = L"(Filter Active)";

std::wstring Placed(std::wstring_view text, std::wstring_view term, const NameLookup& name)
{
    return ReplaceAll(text, L"<PEN" + std::wstring{term} + L">", name(term));
}

} // namespace

TreeCaptions TreeCaptionsFor(TreeMode mode, const NameLookup& name)
{
    TreeCaptions captions;
    captions.serverLabel = EscapeAmpersands(Placed(L"<PENCorvane> Server URL", L"Corvane", name));
    captions.emptyText = mode == TreeMode::RelatedDocument ? L"There are no projects." : L"There are no assignments.";
    captions.refusalIsCritical = mode != TreeMode::GateDocument;
    if (mode == TreeMode::RelatedDocument) {
        captions.caption = L"Save to Related Document";
        captions.treeLabel = L"My Projects";
        captions.nothingSelected = L"You must select a new or existing related document entry from the list.";
    } else if (mode == TreeMode::GateDocument) {
        captions.caption = ReplaceAll(L"Save to Gate Document", L"Gate Document", name(L"Gate Document"));
        captions.treeLabel =
            EscapeAmpersands(ReplaceAll(L"My Gate Documents", L"Gate Documents", name(L"Gate Documents")));
        captions.nothingSelected = L"You must select a " + name(L"Gate Document") + L" from the list.";
    } else {
        captions.caption =
            Placed(Placed(L"Save to <PENDeliverable> or <PENActivity>", L"Deliverable", name), L"Activity", name);
        captions.treeLabel = EscapeAmpersands(
            Placed(Placed(L"My <PENDeliverables> and <PENActivities>", L"Deliverables", name), L"Activities", name));
        captions.nothingSelected =
            L"You must select a " + name(L"Deliverable") + L" or " + name(L"Activity") + L" that you own.";
    }
    return captions;
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
