#include "selection/TreeMode.h"

#include <algorithm>

namespace corvane
{
namespace
{

constexpr TreeLevel kProject{L"project", L"p", L"pid", &Target::projectId};
constexpr TreeLevel kAssignmentLevels[] = {
    kProject,
    {L"stage", L"s", L"phaseid", nullptr},
    {L"deliverable", L"d", L"deliverableid", &Target::deliverableId, TreePicture::Deliverable, true},
    {L"activity", L"a", L"activityid", &Target::activityId, TreePicture::Activity, true},
};
constexpr TreeLevel kRelatedLevels[] = {
    kProject,
    {L"relatedfile", L"rd", L"id", &Target::relatedFileId, TreePicture::RelatedDocument, true},
};
constexpr TreeLevel kGateLevels[] = {
    kProject,
    {L"gate", L"g", L"phaseid", nullptr},
    {L"gateDocument", L"gd", L"gateDocumentID", &Target::gateDocumentId, TreePicture::GateDocument, true},
};

constexpr TreeKind kKinds[] = {
    {.mode = TreeMode::Assignment,
     .levels = kAssignmentLevels,
     .operation = Operations::kAssignmentTree,
     .helpTopic = HelpTopic::AssignmentTree,
     .caption = L"Save to <PENDeliverable> or <PENActivity>",
     .treeLabel = L"My <PENDeliverables> and <PENActivities>",
     .emptyText = L"There are no assignments.",
     .nothingSelected = L"You must select a <PENDeliverable> or <PENActivity> that you own."},
    {.mode = TreeMode::RelatedDocument,
     .levels = kRelatedLevels,
     .newEntry = L"[New Related Document]",
     .operation = Operations::kRelatedFileTree,
     .helpTopic = HelpTopic::RelatedDocumentTree,
     .caption = L"Save to Related Document",
     .treeLabel = L"My Projects",
     .emptyText = L"There are no projects.",
     .nothingSelected = L"You must select a new or existing related document entry from the list."},
    {.mode = TreeMode::GateDocument,
     .levels = kGateLevels,
     .operation = Operations::kGateDocumentTree,
     .helpTopic = HelpTopic::GateDocumentTree,
     .caption = L"Save to <PENGate Document>",
     .treeLabel = L"My <PENGate Documents>",
     .emptyText = L"There are no assignments.",
     .nothingSelected = L"You must select a <PENGate Document> from the list.",
     .refusalIsCritical = false},
};

} // namespace

const TreeKind& TreeKindOf(TreeMode mode) noexcept
{
    const auto* kind = std::ranges::find(kKinds, mode, &TreeKind::mode);
    return kind == std::end(kKinds) ? kKinds[0] : *kind;
}

Target TargetIn(TreeMode mode, const Target& target) noexcept
{
    Target own;
    for (const TreeLevel& level : TreeKindOf(mode).levels)
        if (level.id != nullptr) own.*level.id = target.*level.id;
    return own;
}

bool IsSameTarget(TreeMode mode, const Target& one, const Target& other) noexcept
{
    const TreeKind& kind = TreeKindOf(mode);
    return std::ranges::all_of(kind.levels, [&](const TreeLevel& level) {
        const bool counts = level.isTarget || (kind.newEntry != nullptr && level.id != nullptr);
        return !counts || one.*level.id == other.*level.id;
    });
}

} // namespace corvane
