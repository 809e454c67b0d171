#include "dialogs/UploadMessages.h"

#include <gtest/gtest.h>
#include <tuple>

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

} // namespace

// The scenarios read every message in the default words.
TEST(UploadMessages, TellWhyInTheCustomersWords)
{
    EXPECT_EQ(RefusalMessage(Refusal::OwnedByOther, kTerms),
              L"Document cannot be uploaded to Orbit & Co because the Task is owned by Dana <Stage> Reyes.");
    EXPECT_EQ(RefusalMessage(Refusal::StageLocked, kTerms),
              L"Document cannot be uploaded to Orbit & Co because the project Phase is locked.");
    EXPECT_EQ(RefusalMessage(Refusal::ReauthenticationRequired, kTerms),
              L"Documents that require user re-authentication for creating new versions must be uploaded using the "
              L"Work Item detail page in Orbit & Co.");
}

TEST(UploadMessages, KnowTheServersRefusalsByTheDialog)
{
    const auto told = [](const SaveErrors& errors, std::uint32_t number) {
        return SaveErrorMessage(errors, static_cast<std::int32_t>(number), kTerms);
    };
    EXPECT_EQ(told(kGateDocumentErrors, 0x8004C6A4U),
              L"The project 'Apollo' is closed and no longer active.\r\n\r\nPlease click the Change button to select "
              L"another project.\r\n\r\nYour document has not been saved.");
    EXPECT_EQ(told(kAssignmentErrors, 0x8004C6A8U), std::nullopt);
    EXPECT_EQ(told(kGateDocumentErrors, 0x8004C6A5U), std::nullopt);
    EXPECT_EQ(told(kRelatedDocumentErrors, 0x8004C6A4U), std::nullopt);
}

TEST(UploadMessages, NameTheTargetByWhatIsKnownOfIt)
{
    constexpr std::tuple<const char*, Target, const wchar_t*> kTypes[] = {
        {"Deliverable", {1, 3, 0}, L"Work Item"},       {"Activity", {1, 0, 7}, L"Task"},
        {"ActivityOfADeliverable", {1, 3, 7}, L"Task"}, {"NoTarget", {1, 0, 0}, L"Work Item or Task"},
        {"NoProject", {0, 3, 7}, L"Work Item or Task"}, {"NegativeIds", {1, -3, -7}, L"Work Item or Task"},
    };
    for (const auto& [name, target, expected] : kTypes)
        EXPECT_EQ(TargetTypeName(target, kTerms), expected) << name;
}

} // namespace corvane
