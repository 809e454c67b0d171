#include "dialogs/UploadMessages.h"

#include <gtest/gtest.h>

namespace corvane
{
namespace
{

// Every word differs from its default; one looks like a mark of the texts and has to stay a word.
const UploadTerms kTerms{.corvane = L"Orbit & Co",
                         .deliverable = L"Work Item",
                         .activity = L"Task",
                         .stage = L"Phase",
                         .gate = L"Door",
                         .gateDocument = L"Pass",
                         .completed = L"Done",
                         .targetType = L"Task",
                         .ownerName = L"Dana <Stage> Reyes",
                         .projectName = L"Apollo"};

struct MessageCase
{
    Refusal refusal;
    const wchar_t* prefix;
    const wchar_t* text;
};

constexpr const wchar_t* kPrefix = L"Document cannot be uploaded to Orbit & Co";
constexpr MessageCase kCases[] = {
    {Refusal::ProjectClosed, kPrefix, L" because the project is closed."},
    {Refusal::StageLocked, kPrefix, L" because the project Phase is locked."},
    {Refusal::WrongDocumentType, kPrefix, L" because this is the wrong document type; an online form is required."},
    {Refusal::ReauthenticationRequired, L"",
     L"Documents that require user re-authentication for creating new versions must be uploaded using the Work Item "
     L"detail page in Orbit & Co."},
    {Refusal::BeingRouted, kPrefix, L" because the document is currently being routed."},
    {Refusal::RoutedAndApproved, kPrefix, L" because the document was routed and approved."},
    {Refusal::DeliverableWorkflowRunning, kPrefix, L" because the deliverable workflow is in progress"},
    {Refusal::NoWorkflowPermission, kPrefix,
     L" because you do not have permission to modify this Task during workflow."},
    {Refusal::NotTeamMember, kPrefix, L" because you are not a project team member."},
    {Refusal::OwnedByOther, kPrefix, L" because the Task is owned by Dana <Stage> Reyes."},
    {Refusal::NotOwned, kPrefix, L" because you do not own this Task."},
    {Refusal::NoOwner, kPrefix, L" because the Task has no owner."},
    {Refusal::OutsideTheTeam, kPrefix, L" because you are not a member of the project team."},
    {Refusal::RelatedProjectClosed, kPrefix, L"  because the project is closed."}, // both blanks
};

} // namespace

TEST(UploadMessages, TellWhyInTheCustomersWords)
{
    for (const auto& [refusal, prefix, text] : kCases)
        EXPECT_EQ(RefusalMessage(refusal, kTerms), std::wstring{prefix} + text);
}

struct ErrorCase
{
    const SaveErrors& errors;
    std::uint32_t number;
    const wchar_t* expected; // null for an error that the table does not know
};

TEST(UploadMessages, TellTheServersRefusalsByTheirNumbersAndDialogs)
{
    const std::wstring notOwner = std::wstring{kPrefix} + L" because you are not the owner.";
    const std::wstring closed = std::wstring{kPrefix} + L" because the project is closed.";
    const ErrorCase kErrors[] = {
        {kAssignmentErrors, 0x8004C6A2U, nullptr},
        {kAssignmentErrors, 0x8004C6A3U, notOwner.c_str()},
        {kAssignmentErrors, 0x8004C6A4U, closed.c_str()},
        {kAssignmentErrors, 0x8004C6A5U,
         L"Document cannot be uploaded to Orbit & Co because the project Phase is locked."},
        {kAssignmentErrors, 0x8004C6A6U,
         L"Document cannot be uploaded to Orbit & Co because the document is currently being routed."},
        {kAssignmentErrors, 0x8004C6A7U,
         L"Document cannot be uploaded to Orbit & Co because the document was routed and approved."},
        {kAssignmentErrors, 0x8004C6A8U, nullptr},
        {kAssignmentErrors, 0x8004C6A9U,
         L"Documents that require user re-authentication for creating new versions must be uploaded using the Work "
         L"Item "
         L"detail page in Orbit & Co."},
        {kAssignmentErrors, 225U, nullptr},
        {kGateDocumentErrors, 0x8004C6A3U, notOwner.c_str()},
        {kGateDocumentErrors, 0x8004C6A4U,
         L"The project 'Apollo' is closed and no longer active.\r\n\r\nPlease click the Change button to select "
         L"another "
         L"project.\r\n\r\nYour document has not been saved."},
        {kGateDocumentErrors, 0x8004C6A5U, nullptr},
        {kRelatedDocumentErrors, 0x8004073CU,
         L"Document cannot be uploaded to Orbit & Co  because the project is closed."},
        {kRelatedDocumentErrors, 0x8004C6A4U, nullptr},
    };
    for (const auto& [errors, number, expected] : kErrors) {
        const auto message = SaveErrorMessage(errors, static_cast<std::int32_t>(number), kTerms);
        ASSERT_EQ(message.has_value(), expected != nullptr) << std::hex << number;
        EXPECT_EQ(message.value_or(L""), expected == nullptr ? L"" : expected) << std::hex << number;
    }
}

struct TypeCase
{
    const char* name;
    std::int32_t project;
    std::int32_t deliverable;
    std::int32_t activity;
    const wchar_t* expected;
};

TEST(UploadMessages, NameTheTargetByWhatIsKnownOfIt)
{
    constexpr TypeCase kTypes[] = {
        {"Deliverable", 1, 3, 0, L"Work Item"},       {"Activity", 1, 0, 7, L"Task"},
        {"ActivityOfADeliverable", 1, 3, 7, L"Task"}, {"NoTarget", 1, 0, 0, L"Work Item or Task"},
        {"NoProject", 0, 3, 7, L"Work Item or Task"}, {"NegativeIds", 1, -3, -7, L"Work Item or Task"},
    };
    for (const auto& item : kTypes)
        EXPECT_EQ(TargetTypeName(item.project, item.deliverable, item.activity, kTerms), item.expected) << item.name;
}

} // namespace corvane
