// What the user is told when an upload is refused, by the rules or by the server.
#pragma once

#include "dialogs/UploadRules.h"

#include <optional>
#include <string>

namespace corvane
{

// The customer's words and the names that the messages carry.
struct UploadTerms
{
    std::wstring corvane;
    std::wstring deliverable;
    std::wstring activity;
    std::wstring stage;
    std::wstring targetType; // the customer's word for what is uploaded
    std::wstring ownerName;
};

// The customer's word for a target: one of the two, or both joined by " or " while it is not known.
[[nodiscard]] std::wstring TargetTypeName(std::int32_t projectId, std::int32_t deliverableId, std::int32_t activityId,
                                          const UploadTerms& terms);

[[nodiscard]] std::wstring RefusalMessage(Refusal refusal, const UploadTerms& terms);

// Why the server refused to record a version, by the number of its error; nothing for any other number.
[[nodiscard]] std::optional<Refusal> RefusalOfError(std::int32_t number) noexcept;

// The error by which the mail client declines to be automated; it is passed over in silence.
inline constexpr std::int32_t kAutomationDeclined = 287;

} // namespace corvane
