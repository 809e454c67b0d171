// The tree of targets: its levels in each mode, the keys of its nodes, and what a key selects.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace corvane
{

// What the tree offers; the numbers are those of DialogType.
enum class TreeMode
{
    Assignment = 0,
    RelatedDocument = 1,
    GateDocument = 2
};

// The fixed pictures of the tree by their number, and that of a project, stage or gate without an icon of its own.
inline constexpr int kDeliverableImage = 1;
inline constexpr int kActivityImage = 2;
inline constexpr int kRelatedDocumentImage = 3;
inline constexpr int kGateDocumentImage = 4;
inline constexpr int kPlainImage = 5;

// One level of nodes: the element that makes them, the marker and attribute that make their keys, and their picture: a
// fixed one, or the server's icon of a kind ("project", "stage", "gate").
struct TreeLevel
{
    const wchar_t* element;
    const wchar_t* marker;
    const wchar_t* idAttribute;
    int image;               // 0 when the icon set decides
    const wchar_t* iconKind; // null for a fixed picture
};

// The levels below each other, the project first.
[[nodiscard]] std::span<const TreeLevel> TreeLevels(TreeMode mode) noexcept;

// The key of a node: the parent's key, the level's marker and the id in decimal.
[[nodiscard]] std::wstring NodeKey(std::wstring_view parentKey, const TreeLevel& level, std::wstring_view id);

// The entry by which a new related document is chosen; one stands under every project.
inline constexpr std::wstring_view kNewRelatedDocumentText = L"[New Related Document]";

// What a selected node stands for; ids that the mode does not know stay 0.
struct TreeTarget
{
    std::int32_t projectId = 0;
    std::int32_t deliverableId = 0;
    std::int32_t activityId = 0;
    std::int32_t relatedDocId = 0;
    std::int32_t gateDocumentId = 0;
};

// Reads the ids back from a key; nothing when the node is no target in this mode (or no node is selected).
[[nodiscard]] std::optional<TreeTarget> TargetOfKey(TreeMode mode, std::wstring_view key);

} // namespace corvane
