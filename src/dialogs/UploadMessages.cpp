#include "dialogs/UploadMessages.h"

#include "support/Conversions.h"

namespace corvane
{
namespace
{

struct RefusalText
{
    Refusal refusal;
    bool prefixed; // begins with "Document cannot be uploaded to ..."
    const wchar_t* text;
};

// <Stage>, <Type>, <Owner>, <Deliverable> and <Corvane> stand for the customer's words and names.
constexpr RefusalText kTexts[] = {
    {Refusal::ProjectClosed, true, L" because the project is closed."},
    {Refusal::StageLocked, true, L" because the project <Stage> is locked."},
    {Refusal::WrongDocumentType, true, L" because this is the wrong document type; an online form is required."},
    {Refusal::ReauthenticationRequired, false,
     L"Documents that require user re-authentication for creating new versions must be uploaded using the <Deliverable> "
     L"detail page in <Corvane>."},
    {Refusal::BeingRouted, true, L" because the document is currently being routed."},
    {Refusal::RoutedAndApproved, true, L" because the document was routed and approved."},
    {Refusal::DeliverableWorkflowRunning, true, L" because the deliverable workflow is in progress"},
    {Refusal::NoWorkflowPermission, true,
     L" because you do not have permission to modify this <Type> during workflow."},
    {Refusal::NotTeamMember, true, L" because you are not a project team member."},
    {Refusal::OwnedByOther, true, L" because the <Type> is owned by <Owner>."},
    {Refusal::NotOwned, true, L" because you do not own this <Type>."},
    {Refusal::NoOwner, true, L" because the <Type> has no owner."},
    {Refusal::NotTheOwner, true, L" because you are not the owner."},
};

struct ErrorRow
{
    std::uint32_t number;
    Refusal refusal;
};

// The server's numbers for a refused recording, from the base of application-defined errors.
constexpr ErrorRow kErrors[] = {
    {0x8004C6A3U, Refusal::NotTheOwner},   {0x8004C6A4U, Refusal::ProjectClosed},
    {0x8004C6A5U, Refusal::StageLocked},   {0x8004C6A6U, Refusal::BeingRouted},
    {0x8004C6A7U, Refusal::RoutedAndApproved}, {0x8004C6A9U, Refusal::ReauthenticationRequired},
};

// Puts words in place of their marks in one pass, so that a word that looks like a mark stays a word.
std::wstring Filled(std::wstring_view text, const UploadTerms& terms)
{
    const std::pair<std::wstring_view, const std::wstring&> words[] = {{L"<Stage>", terms.stage},
                                                                       {L"<Type>", terms.targetType},
                                                                       {L"<Owner>", terms.ownerName},
                                                                       {L"<Deliverable>", terms.deliverable},
                                                                       {L"<Corvane>", terms.corvane}};
    std::wstring filled;
    while (!text.empty())
    {
        std::size_t taken = 1;
        std::wstring_view put = text.substr(0, 1);
        for (const auto& [mark, word] : words)
        {
            if (!text.starts_with(mark)) continue;
            taken = mark.size();
            put = word;
        }
        filled += put;
        text.remove_prefix(taken);
    }
    return filled;
}

} // namespace

std::wstring TargetTypeName(std::int32_t projectId, std::int32_t deliverableId, std::int32_t activityId,
                            const UploadTerms& terms)
{
    if (projectId >= 1 && activityId > 0) return terms.activity;
    if (projectId >= 1 && deliverableId > 0) return terms.deliverable;
    return terms.deliverable + L" or " + terms.activity;
}

std::wstring RefusalMessage(Refusal refusal, const UploadTerms& terms)
{
    for (const auto& row : kTexts)
    {
        if (row.refusal != refusal) continue;
        const std::wstring prefix = row.prefixed ? L"Document cannot be uploaded to <Corvane>" : L"";
        return Filled(prefix + row.text, terms);
    }
    return {};
}

std::optional<Refusal> RefusalOfError(std::int32_t number) noexcept
{
    for (const ErrorRow& row : kErrors)
    {
        if (row.number == static_cast<std::uint32_t>(number)) return row.refusal;
    }
    return std::nullopt;
}

} // namespace corvane
