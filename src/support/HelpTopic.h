// The topics of the help file that the forms ask for.
#pragma once

namespace corvane
{

// By their context ids in the help file.
enum class HelpTopic
{
    SaveAssignment = 1,
    SaveRelatedDocument = 2,
    AssignmentTree = 3,
    RelatedDocumentTree = 4,
    SaveGateDocument = 6,
    GateDocumentTree = 7
};

} // namespace corvane
