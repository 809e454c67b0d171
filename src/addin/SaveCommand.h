// The three save commands: what each one asks of a document's binding.
#pragma once

#include "selection/TreeMode.h"
#include "shared/DocumentBinding.h"

#include <cstdint>

namespace corvane
{

// A save command by its tree and by lMethodType of the busy window.
struct SaveCommand
{
    TreeMode tree;
    std::int32_t methodType;
    // It can make a new target: a project alone is enough for it, and its tree always starts without target.
    bool makesTargets = false;
};

inline constexpr SaveCommand kSaveAssignment{TreeMode::Assignment, 0};
inline constexpr SaveCommand kSaveGateDoc{TreeMode::GateDocument, 1};
inline constexpr SaveCommand kSaveRelatedDoc{TreeMode::RelatedDocument, 2, true};

// Whether the binding already names a target, so that the tree is skipped.
[[nodiscard]] bool SkipsTree(const SaveCommand& command, const DocumentBinding& binding) noexcept;

// Whether a target is there to open the save dialog with.
[[nodiscard]] bool HasTarget(const SaveCommand& command, const DocumentBinding& binding) noexcept;

// The target that the tree starts at.
[[nodiscard]] Target StartOf(const SaveCommand& command, const DocumentBinding& binding) noexcept;

} // namespace corvane
