// The three save commands: what each one asks of a document's binding.
#pragma once

#include "shared/DocumentBinding.h"

#include <cstdint>

namespace corvane
{

// A save command by its numbers: DialogType of the tree and lMethodType of the busy window.
struct SaveCommand
{
    std::int32_t dialogType;
    std::int32_t methodType;
    // Whether the binding already names a target, so that the tree is skipped.
    bool (*skipsTree)(const DocumentBinding& binding) noexcept;
    // Whether a target is there to open the save dialog with.
    bool (*hasTarget)(const DocumentBinding& binding) noexcept;
    // What of the binding the tree starts from; a related document always starts without project and document.
    DocumentBinding (*startOf)(const DocumentBinding& binding);
};

extern const SaveCommand kSaveAssignment;
extern const SaveCommand kSaveGateDoc;
extern const SaveCommand kSaveRelatedDoc;

} // namespace corvane
