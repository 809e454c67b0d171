#include "addin/SaveCommand.h"

namespace corvane
{
namespace
{

bool NamesAssignment(const DocumentBinding& binding) noexcept
{
    return !binding.server.empty() && (binding.deliverableId > 0 || binding.activityId > 0);
}

bool NamesGateDocument(const DocumentBinding& binding) noexcept
{
    return !binding.server.empty() && binding.gateDocumentId > 0;
}

// A related document's id counts as set when it is not 0, whatever its sign.
bool NamesRelatedDocument(const DocumentBinding& binding) noexcept
{
    return !binding.server.empty() && binding.relatedFileId != 0;
}

bool NamesRelatedTarget(const DocumentBinding& binding) noexcept
{
    return !binding.server.empty() && (binding.relatedFileId != 0 || binding.projectId != 0);
}

DocumentBinding AsItIs(const DocumentBinding& binding) { return binding; }

DocumentBinding ServerOnly(const DocumentBinding& binding)
{
    DocumentBinding start;
    start.server = binding.server;
    return start;
}

} // namespace

const SaveCommand kSaveAssignment{0, 0, &NamesAssignment, &NamesAssignment, &AsItIs};
const SaveCommand kSaveGateDoc{2, 1, &NamesGateDocument, &NamesGateDocument, &AsItIs};
const SaveCommand kSaveRelatedDoc{1, 2, &NamesRelatedDocument, &NamesRelatedTarget, &ServerOnly};

} // namespace corvane
