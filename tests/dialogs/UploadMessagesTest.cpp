#include "dialogs/UploadMessages.h"

#include <gtest/gtest.h>

namespace corvane
{
namespace
{

// Every word differs from its default; one looks like a mark of the texts and has to stay a word.
const UploadTerms kTerms{L"Orbit & Co", L"Work Item", L"Task", L"Phase", L"Task", L"Dana <Stage> Reyes"};

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
    {Refusal::NotTheOwner, kPrefix, L" because you are not the owner."},
};

} // namespace

TEST(UploadMessages, TellWhyInTheCustomersWords)
{
    for (const auto& [refusal, prefix, text] : kCases)
        EXPECT_EQ(RefusalMessage(refusal, kTerms), std::wstring{prefix} + text);
}

struct ErrorNumberCase
{
    std::uint32_t number;
    std::optional<Refusal> expected;
};

TEST(UploadMessages, KnowTheServersRefusalsByTheirNumbers)
{
    constexpr ErrorNumberCase kNumbers[] = {
        {0x8004C6A2U, std::nullopt},
        {0x8004C6A3U, Refusal::NotTheOwner},
        {0x8004C6A4U, Refusal::ProjectClosed},
        {0x8004C6A5U, Refusal::StageLocked},
        {0x8004C6A6U, Refusal::BeingRouted},
        {0x8004C6A7U, Refusal::RoutedAndApproved},
        {0x8004C6A8U, std::nullopt},
        {0x8004C6A9U, Refusal::ReauthenticationRequired},
        {0x8004C6AAU, std::nullopt},
        {0x0000C6A3U, std::nullopt},
        {225U, std::nullopt},
        {287U, std::nullopt},
        {0U, std::nullopt},
    };
    for (const auto& [number, expected] : kNumbers)
        EXPECT_EQ(RefusalOfError(static_cast<std::int32_t>(number)), expected) << std::hex << number;
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
