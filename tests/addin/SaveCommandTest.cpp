#include "addin/Commands.h"

#include <gtest/gtest.h>

namespace corvane
{
namespace
{

struct CommandCase
{
    const char* name;
    const SaveCommand& command;
    std::int32_t DocumentBinding::*id;
    std::int32_t value;
    bool skipsTree;
    bool hasTarget;
};

const CommandCase kCases[] = {
    {"Deliverable", kSaveAssignment, &DocumentBinding::deliverableId, 1, true, true},
    {"Activity", kSaveAssignment, &DocumentBinding::activityId, 1, true, true},
    {"NegativeDeliverable", kSaveAssignment, &DocumentBinding::deliverableId, -1, false, false},
    {"NegativeActivity", kSaveAssignment, &DocumentBinding::activityId, -1, false, false},
    {"AssignmentOfAGateDocument", kSaveAssignment, &DocumentBinding::gateDocumentId, 1, false, false},
    {"AssignmentOfAProject", kSaveAssignment, &DocumentBinding::projectId, 1, false, false},
    {"GateDocument", kSaveGateDoc, &DocumentBinding::gateDocumentId, 1, true, true},
    {"NegativeGateDocument", kSaveGateDoc, &DocumentBinding::gateDocumentId, -1, false, false},
    {"GateDocumentOfADeliverable", kSaveGateDoc, &DocumentBinding::deliverableId, 3, false, false},
    {"RelatedDocument", kSaveRelatedDoc, &DocumentBinding::relatedFileId, 1, true, true},
    {"NegativeRelatedDocumentCounts", kSaveRelatedDoc, &DocumentBinding::relatedFileId, -1, true, true},
    {"NewRelatedDocumentOfAProject", kSaveRelatedDoc, &DocumentBinding::projectId, 12, false, true},
    {"RelatedDocumentOfANegativeProject", kSaveRelatedDoc, &DocumentBinding::projectId, -1, false, true},
    {"RelatedDocumentOfADeliverable", kSaveRelatedDoc, &DocumentBinding::deliverableId, 3, false, false},
};

DocumentBinding FullBinding() { return {{12, 45, 678, 4, 9}, L"http://host"}; }

} // namespace

TEST(SaveCommand, LooksForItsOwnIdsInTheBinding)
{
    for (const CommandCase& item : kCases) {
        SCOPED_TRACE(item.name);
        DocumentBinding binding;
        binding.*item.id = item.value;
        EXPECT_FALSE(SkipsTree(item.command, binding)) << "without a server";
        EXPECT_FALSE(HasTarget(item.command, binding)) << "without a server";
        binding.server = L"http://host";
        EXPECT_EQ(SkipsTree(item.command, binding), item.skipsTree);
        EXPECT_EQ(HasTarget(item.command, binding), item.hasTarget);
    }
}

TEST(SaveCommand, StartsTheTreeAtTheBoundTargetExceptForARelatedDocument)
{
    const Target assignment = StartOf(kSaveAssignment, FullBinding());
    EXPECT_EQ(assignment.projectId, 12);
    EXPECT_EQ(assignment.deliverableId, 45);
    EXPECT_EQ(assignment.activityId, 678);
    EXPECT_EQ(StartOf(kSaveGateDoc, FullBinding()).projectId, 12);
    EXPECT_EQ(StartOf(kSaveGateDoc, FullBinding()).gateDocumentId, 9);
    EXPECT_EQ(StartOf(kSaveRelatedDoc, FullBinding()).projectId, 0);
    EXPECT_EQ(StartOf(kSaveRelatedDoc, FullBinding()).relatedFileId, 0);
}

TEST(Commands, AreFoundByTheExactIdsOfTheirRibbonControls)
{
    for (const auto commands : {SaveCommands(), HelpCommands()}) {
        for (const Command& command : commands) {
            EXPECT_EQ(FindCommand(command.controlId), &command);
            EXPECT_EQ(&CommandOf(command.kind), &command);
        }
    }
    for (const auto* id : {L"delivact", L"DelivAct ", L"SaveToCorvane", L""})
        EXPECT_EQ(FindCommand(id), nullptr) << testing::PrintToString(id);
}

} // namespace corvane
