#include "dialogs/UploadMessages.h"

#include <algorithm>
#include <utility>

namespace corvane
{
namespace
{

struct RefusalText
{
    Refusal refusal;
    const wchar_t* text;
};

// Marks stand for the customer's words and names; <Refused> for the beginning that most messages share. The two blanks
// of the related document's closed project belong to its text.
constexpr RefusalText kTexts[] = {
    {Refusal::ProjectClosed, L"<Refused> because the project is closed."},
    {Refusal::StageLocked, L"<Refused> because the project <Stage> is locked."},
    {Refusal::WrongDocumentType, L"<Refused> because this is the wrong document type; an online form is required."},
    {Refusal::ReauthenticationRequired, L"Documents that require user re-authentication for creating new versions must "
                                        L"be uploaded using the <Deliverable> "
                                        L"detail page in <Corvane>."},
    {Refusal::BeingRouted, L"<Refused> because the document is currently being routed."},
    {Refusal::RoutedAndApproved, L"<Refused> because the document was routed and approved."},
    {Refusal::DeliverableWorkflowRunning, L"<Refused> because the deliverable workflow is in progress"},
    {Refusal::NoWorkflowPermission,
     L"<Refused> because you do not have permission to modify this <Type> during workflow."},
    {Refusal::NotTeamMember, L"<Refused> because you are not a project team member."},
    {Refusal::OwnedByOther, L"<Refused> because the <Type> is owned by <Owner>."},
    {Refusal::NotOwned, L"<Refused> because you do not own this <Type>."},
    {Refusal::NoOwner, L"<Refused> because the <Type> has no owner."},
    {Refusal::OutsideTheTeam, L"<Refused> because you are not a member of the project team."},
    {Refusal::RelatedProjectClosed, L"<Refused>  because the project is closed."},
};

// None is without a text.
static_assert(std::size(kTexts) == static_cast<std::size_t>(Refusal::RelatedProjectClosed) + 1);

constexpr const wchar_t* TextOf(Refusal refusal)
{
    return std::ranges::find(kTexts, refusal, &RefusalText::refusal)->text;
}

// The server's numbers lie above the base of application-defined errors, 0x80040000.
constexpr SaveErrorRow kAssignmentRows[] = {
    {0x8004C6A3U, L"<Refused> because you are not the owner."},
    {0x8004C6A4U, TextOf(Refusal::ProjectClosed)},
    {0x8004C6A5U, TextOf(Refusal::StageLocked)},
    {0x8004C6A6U, TextOf(Refusal::BeingRouted)},
    {0x8004C6A7U, TextOf(Refusal::RoutedAndApproved)},
    {0x8004C6A9U, TextOf(Refusal::ReauthenticationRequired)},
};
constexpr SaveErrorRow kGateDocumentRows[] = {
    {0x8004C6A3U, L"<Refused> because you are not the owner."},
    {0x8004C6A4U,
     L"The project '<Project>' is closed and no longer active.\r\n\r\nPlease click the Change button to select "
     L"another project.\r\n\r\nYour document has not been saved."},
};
constexpr SaveErrorRow kRelatedDocumentRows[] = {
    {0x8004073CU, TextOf(Refusal::RelatedProjectClosed)},
};

// Puts words in place of their marks in one pass, so that a word that looks like a mark stays a word.
std::wstring Filled(std::wstring_view text, const UploadTerms& terms)
{
    const std::wstring refused = L"Document cannot be uploaded to " + terms.corvane;
    const std::pair<std::wstring_view, std::wstring_view> words[] = {{L"<Refused>", refused},
                                                                     {L"<Stage>", terms.stage},
                                                                     {L"<Type>", terms.targetType},
                                                                     {L"<Owner>", terms.ownerName},
                                                                     {L"<Deliverable>", terms.deliverable},
                                                                     {L"<Corvane>", terms.corvane},
                                                                     {L"<Project>", terms.projectName}};
    std::wstring filled;
    while (!text.empty()) {
        const auto* const word =
            std::ranges::find_if(words, [&](const auto& one) { return text.starts_with(one.first); });
        const bool isMark = word != std::end(words);
        filled += isMark ? word->second : text.substr(0, 1);
        text.remove_prefix(isMark ? word->first.size() : 1);
    }
    return filled;
}

} // namespace

const SaveErrors kAssignmentErrors{kAssignmentRows};
const SaveErrors kGateDocumentErrors{kGateDocumentRows};
const SaveErrors kRelatedDocumentErrors{kRelatedDocumentRows};

std::wstring TargetTypeName(const Target& target, const UploadTerms& terms)
{
    if (target.projectId >= 1 && target.activityId > 0) return terms.activity;
    if (target.projectId >= 1 && target.deliverableId > 0) return terms.deliverable;
    return terms.deliverable + L" or " + terms.activity;
}

std::wstring RefusalMessage(Refusal refusal, const UploadTerms& terms) { return Filled(TextOf(refusal), terms); }

std::optional<std::wstring> SaveErrorMessage(SaveErrors errors, std::int32_t number, const UploadTerms& terms)
{
    for (const SaveErrorRow& row : errors) {
        if (row.number == static_cast<std::uint32_t>(number)) return Filled(row.text, terms);
    }
    return std::nullopt;
}

} // namespace corvane
