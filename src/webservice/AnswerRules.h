// What an answer of the server means: success, or which error.
#pragma once

#include "platform/Error.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace corvane
{

// The number of transport and HTTP failures.
inline constexpr std::int32_t kTransportError = 225;
// The number by which a server says that it is too old for this client.
inline constexpr auto kServerTooOld = static_cast<std::int32_t>(0x8004070C);
// The base of the numbers that applications define; also stands for an error document without a usable number.
inline constexpr auto kApplicationErrorBase = static_cast<std::int32_t>(0x80040000);

// An answer whose text holds "<error", in any letter case and anywhere, is an error document.
[[nodiscard]] bool IsErrorDocument(std::wstring_view text);

// An error document's "number" as an error number: a non-zero 32-bit integer, else kApplicationErrorBase.
[[nodiscard]] std::int32_t ToErrorNumber(std::wstring_view text);

// The description of an HTTP status that has no meaning of its own. The answer's text is not part of it.
[[nodiscard]] std::wstring HTTPErrorText(std::wstring_view server, long status, std::wstring_view responseText);

// The descriptions of a server that does not answer, and of an upload that did not get through.
[[nodiscard]] std::wstring UnableToContact(std::wstring_view server);
[[nodiscard]] std::wstring UnableToConnect(std::wstring_view server);

enum class AnswerMeaning
{
    Success,
    Unreachable,   // a status that counts as "no such server"
    SecureChannel, // access only over a secure channel
    ErrorDocument, // the answer's document tells the error
    HttpStatus     // the status is the error
};

// One procedure of the web service: how it reads statuses and the sources and texts that its errors carry.
struct ServiceProcedure
{
    std::span<const long> unreachable; // statuses that count as "no such server"
    bool ownStatuses = true;           // 403 has its own text, and 509 stands for an error document whatever the text
    bool strictNumber = false;         // an error document's number must be an integer, and is used as it is
    const wchar_t* source;
    const wchar_t* invalidUrlSource = source;
    const wchar_t* tooOldSource = source;
    std::wstring (*unreachableText)(std::wstring_view server) = &UnableToContact;
};

extern const ServiceProcedure kOperationCall;
extern const ServiceProcedure kAccessLogCall;
extern const ServiceProcedure kBinaryCall;
extern const ServiceProcedure kUploadCall;

// What an answer means for the procedure that asked, by its HTTP status and by whether its text is an error document.
[[nodiscard]] AnswerMeaning MeaningOf(long status, bool isErrorDocument, const ServiceProcedure& procedure);

// What an error document says of itself, as it stands there. Only the number is always wanted: a server that is too old
// needs no words.
struct ErrorDocument
{
    std::wstring number;
    std::optional<std::wstring> source{};
    std::optional<std::wstring> description{};
};

// The error of an answer that is neither a success nor an error document.
[[nodiscard]] Error StatusError(AnswerMeaning meaning, long status, std::wstring_view server, std::wstring_view text,
                                const ServiceProcedure& procedure);

// The error that an error document stands for; type mismatch where the procedure wants an integer and there is none,
// invalid use of Null where words are missing.
[[nodiscard]] Error DocumentError(const ErrorDocument& document, const ServiceProcedure& procedure);

// The error of an attribute that is read and not there.
[[nodiscard]] Error NullError(const wchar_t* source);

// The error of a request that could not be opened, whether the address was unusable or anything else failed.
[[nodiscard]] Error OpenError(bool invalidUrl, const ServiceProcedure& procedure);

// The error of a request that could not be sent or was not answered.
[[nodiscard]] Error SendError(std::wstring_view server, const ServiceProcedure& procedure);

} // namespace corvane
