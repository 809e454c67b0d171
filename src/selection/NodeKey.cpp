#include "selection/NodeKey.h"

#include "support/Conversions.h"

namespace corvane
{
namespace
{

constexpr TreeLevel kProjectLevel{L"project", L"p", L"pid", 0, L"project"};
constexpr TreeLevel kAssignmentLevels[] = {
    kProjectLevel,
    {L"stage", L"s", L"phaseid", 0, L"stage"},
    {L"deliverable", L"d", L"deliverableid", kDeliverableImage, nullptr},
    {L"activity", L"a", L"activityid", kActivityImage, nullptr},
};
constexpr TreeLevel kRelatedLevels[] = {
    kProjectLevel,
    {L"relatedfile", L"rd", L"id", kRelatedDocumentImage, nullptr},
};
constexpr TreeLevel kGateLevels[] = {
    kProjectLevel,
    {L"gate", L"g", L"phaseid", 0, L"gate"},
    {L"gateDocument", L"gd", L"gateDocumentID", kGateDocumentImage, nullptr},
};

// The digits behind a marker in a key; nothing when the marker is not in it.
std::optional<std::int32_t> IdBehind(std::wstring_view key, std::wstring_view marker)
{
    const auto position = key.find(marker);
    if (position == std::wstring_view::npos) return std::nullopt;
    const auto digits = key.substr(position + marker.size());
    return ToLongSafe(digits.substr(0, digits.find_first_not_of(L"0123456789")));
}

} // namespace

std::span<const TreeLevel> TreeLevels(TreeMode mode) noexcept
{
    if (mode == TreeMode::RelatedDocument) return kRelatedLevels;
    if (mode == TreeMode::GateDocument) return kGateLevels;
    return kAssignmentLevels;
}

std::wstring NodeKey(std::wstring_view parentKey, const TreeLevel& level, std::wstring_view id)
{
    return std::wstring{parentKey} + level.marker + std::wstring{id};
}

std::optional<TreeTarget> TargetOfKey(TreeMode mode, std::wstring_view key)
{
    TreeTarget target;
    target.projectId = IdBehind(key, L"p").value_or(0);
    if (mode == TreeMode::RelatedDocument) {
        const auto related = IdBehind(key, L"rd");
        target.relatedDocId = related.value_or(0);
        return related ? std::optional{target} : std::nullopt;
    }
    if (mode == TreeMode::GateDocument) {
        const auto gateDocument = IdBehind(key, L"gd");
        target.gateDocumentId = gateDocument.value_or(0);
        return gateDocument ? std::optional{target} : std::nullopt;
    }
    const auto deliverable = IdBehind(key, L"d");
    target.deliverableId = deliverable.value_or(0);
    target.activityId = IdBehind(key, L"a").value_or(0);
    return deliverable ? std::optional{target} : std::nullopt;
}

} // namespace corvane
