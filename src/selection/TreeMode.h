// The three trees of targets in one table: what each is made of, where it comes from and what it says.
#pragma once

#include "shared/Target.h"
#include "support/HelpTopic.h"
#include "webservice/Operations.h"

#include <cstdint>
#include <span>

namespace corvane
{

// What the tree offers; the numbers are those of DialogType.
enum class TreeMode
{
    Assignment = 0,
    RelatedDocument = 1,
    GateDocument = 2
};

// The add-in's own pictures, in the order of the image list. The plain one is that of a project, stage or gate without
// an icon of its own.
enum class TreePicture
{
    Deliverable,
    Activity,
    RelatedDocument,
    GateDocument,
    Plain
};

// One level of nodes: the element that makes them, the marker and attribute that make their keys, and the id that they
// fill in a target. What can be picked has its own picture, the others the server's icon for their element.
struct TreeLevel
{
    const wchar_t* element;
    const wchar_t* marker;
    const wchar_t* idAttribute;
    std::int32_t Target::*id; // null where a target does not tell it
    TreePicture picture = TreePicture::Plain;
    bool isTarget = false;
};

// One tree. The texts hold marks, "<PENTerm>", for the customer's words.
struct TreeKind
{
    TreeMode mode;
    std::span<const TreeLevel> levels; // below each other, the project first
    const wchar_t* newEntry = nullptr; // the entry for a new target, of id 0, first in every project; null for none
    Operation operation;               // fetches the tree
    HelpTopic helpTopic;
    const wchar_t* caption;
    const wchar_t* treeLabel;
    const wchar_t* emptyText;       // stands in place of a tree without projects
    const wchar_t* nothingSelected; // the refusal of OK without a target
    bool refusalIsCritical = true;
};

[[nodiscard]] const TreeKind& TreeKindOf(TreeMode mode) noexcept;

// Of a target's ids those that the mode's tree tells; the others are 0.
[[nodiscard]] Target TargetIn(TreeMode mode, const Target& target) noexcept;

// Whether two targets of a mode are the same: by the ids of what can be picked, and where that may be new also by the
// project.
[[nodiscard]] bool IsSameTarget(TreeMode mode, const Target& one, const Target& other) noexcept;

} // namespace corvane
