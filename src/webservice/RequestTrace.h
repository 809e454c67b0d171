// What the trace tells of a request, and what the codes of a failed transport mean.
#pragma once

#include "platform/RequestFacts.h"

#include <string>
#include <string_view>

namespace corvane
{

// What is behind a code of the transport, and what to do about it; empty for a code that the table does not have.
struct TransportMeaning
{
    const wchar_t* meaning = L"";
    const wchar_t* remedy = L"";
};
[[nodiscard]] TransportMeaning MeaningOfTransport(long code) noexcept;

// The line of a request: its time and bytes, the operation, the server and how it ended, with tabs in between.
[[nodiscard]] std::wstring RequestLine(std::wstring_view operation, std::wstring_view server,
                                       const RequestFacts& facts);

} // namespace corvane
