// The keys of the tree's nodes, and what a key selects.
#pragma once

#include "selection/TreeMode.h"

#include <optional>
#include <string>
#include <string_view>

namespace corvane
{

// The key of a node: the parent's key, the level's marker and the id in decimal.
[[nodiscard]] std::wstring NodeKey(std::wstring_view parentKey, const TreeLevel& level, std::wstring_view id);

// Reads the ids back from a key, 0 where the mode does not know one; nothing when the node is no target in this mode
// (or no node is selected).
[[nodiscard]] std::optional<Target> TargetOfKey(TreeMode mode, std::wstring_view key);

} // namespace corvane
