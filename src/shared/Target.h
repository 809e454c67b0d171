// What of a project a document is saved to.
#pragma once

#include <cstdint>

namespace corvane
{

// The ids that name a target on its server, as the server assigned them. 0 stands for none, and for a related document
// that the save is to make.
struct Target
{
    std::int32_t projectId = 0;
    std::int32_t deliverableId = 0;
    std::int32_t activityId = 0;
    std::int32_t relatedFileId = 0;
    std::int32_t gateDocumentId = 0;
};

} // namespace corvane
