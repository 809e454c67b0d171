// What the user is told when an upload is refused, by the rules or by the server.
#pragma once

#include "dialogs/UploadRules.h"
#include "shared/Target.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace corvane
{

// The customer's words and the names that the messages carry.
struct UploadTerms
{
    std::wstring corvane;
    std::wstring deliverable;
    std::wstring activity;
    std::wstring stage;
    std::wstring gate;
    std::wstring gateDocument;
    std::wstring completed;
    std::wstring targetType; // the customer's word for what is uploaded
    std::wstring ownerName;
    std::wstring projectName;
};

// The customer's word for a target: one of the two, or both joined by " or " while it is not known.
[[nodiscard]] std::wstring TargetTypeName(const Target& target, const UploadTerms& terms);

// What the user is told when the rules refuse a target, with the customer's words and the names put in.
[[nodiscard]] std::wstring RefusalMessage(Refusal refusal, const UploadTerms& terms);

// The message of an error that the server raised while a version was recorded. The text may hold marks for the
// customer's words.
struct SaveErrorRow
{
    std::uint32_t number;
    const wchar_t* text;
};
using SaveErrors = std::span<const SaveErrorRow>;
extern const SaveErrors kAssignmentErrors;
extern const SaveErrors kGateDocumentErrors;
extern const SaveErrors kRelatedDocumentErrors;

// The message for an error number, with the words put in; nothing for a number that the table does not have.
[[nodiscard]] std::optional<std::wstring> SaveErrorMessage(SaveErrors errors, std::int32_t number,
                                                           const UploadTerms& terms);

// The error by which the mail client declines to be automated; it is passed over in silence.
inline constexpr std::int32_t kAutomationDeclined = 287;

} // namespace corvane
