#include "webservice/AnswerRules.h"

#include "support/Conversions.h"

#include <algorithm>

namespace corvane
{
namespace
{

constexpr long kOk = 200;
constexpr long kForbidden = 403;
constexpr long kErrorDocumentStatus = 509;

constexpr long kOperationUnreachable[] = {401, 404, 424};
constexpr long kBinaryUnreachable[] = {401, 404};
constexpr long kUploadUnreachable[] = {404};

// What keeps a text from being an integer, if anything does.
std::optional<Error> IntegerFailure(std::wstring_view text, const wchar_t* source)
{
    const auto number = NumberIn(text);
    if (!number) return Error{kErrorTypeMismatch, source, L"Type mismatch"};
    if (!NearestLong(*number)) return Error{kErrorOverflow, source, L"Overflow"};
    return std::nullopt;
}

} // namespace

// The two forms "ASPWebService" and "ASPWebservice" are the interface's.
const ServiceProcedure kOperationCall{.unreachable = kOperationUnreachable,
                                      .source = L"ExecuteASPWebService",
                                      .invalidUrlSource = L"ExecuteASPWebservice"};
const ServiceProcedure kAccessLogCall{.unreachable = kOperationUnreachable, .source = L"UpdateUserLog"};
const ServiceProcedure kBinaryCall{.unreachable = kBinaryUnreachable,
                                   .strictNumber = true,
                                   .source = L"ExecuteASPWebserviceBinary",
                                   .tooOldSource = L"ExecuteASPWebServiceBinary"};
const ServiceProcedure kUploadCall{.unreachable = kUploadUnreachable,
                                   .ownStatuses = false,
                                   .source = L"ExecuteASPWSUploadFile",
                                   .unreachableText = &UnableToConnect};

bool IsErrorDocument(std::wstring_view text)
{
    constexpr std::wstring_view kOpener = L"<error";
    const auto same = [](wchar_t left, wchar_t right) {
        return (left >= L'A' && left <= L'Z' ? left + (L'a' - L'A') : left) == right;
    };
    return std::search(text.begin(), text.end(), kOpener.begin(), kOpener.end(), same) != text.end();
}

std::int32_t ToErrorNumber(std::wstring_view text)
{
    const std::int32_t number = ToLongSafe(text);
    return number != 0 ? number : kApplicationErrorBase;
}

std::wstring HTTPErrorText(std::wstring_view server, long status, std::wstring_view /*responseText*/)
{
    std::wstring text = L"Error: HTTP Status Code ";
    text.append(std::to_wstring(status)).append(L"\r\n\r\nRemote call to '").append(server).append(L"' failed.\r\n");
    return text;
}

std::wstring UnableToContact(std::wstring_view server)
{
    return ReplaceAll(L"Unable to contact server <ServerURL>.", L"<ServerURL>", server);
}

std::wstring UnableToConnect(std::wstring_view server)
{
    return L"Unable to connect to server '" + std::wstring{server} + L"'";
}

AnswerMeaning MeaningOf(long status, bool isErrorDocument, const ServiceProcedure& procedure)
{
    if (status == kOk && !isErrorDocument) return AnswerMeaning::Success;
    if (std::find(procedure.unreachable.begin(), procedure.unreachable.end(), status) != procedure.unreachable.end())
        return AnswerMeaning::Unreachable;
    if (status == kForbidden && procedure.ownStatuses) return AnswerMeaning::SecureChannel;
    if (status == kErrorDocumentStatus && procedure.ownStatuses) return AnswerMeaning::ErrorDocument;
    return isErrorDocument ? AnswerMeaning::ErrorDocument : AnswerMeaning::HttpStatus;
}

Error StatusError(AnswerMeaning meaning, long status, std::wstring_view server, std::wstring_view text,
                  const ServiceProcedure& procedure)
{
    if (meaning == AnswerMeaning::Unreachable) return SendError(server, procedure);
    if (meaning == AnswerMeaning::SecureChannel)
        return {kTransportError, procedure.source,
                L"The server cannot be accessed or the page must be viewed over a secure channel."};
    return {static_cast<std::int32_t>(status), procedure.source, HTTPErrorText(server, status, text)};
}

Error NullError(const wchar_t* source) { return {kErrorInvalidUseOfNull, source, L"Invalid use of Null"}; }

Error DocumentError(const ErrorDocument& document, const ServiceProcedure& procedure)
{
    if (procedure.strictNumber) {
        if (const auto failure = IntegerFailure(document.number, procedure.source)) return *failure;
    }
    const std::int32_t number = procedure.strictNumber ? ToLongSafe(document.number) : ToErrorNumber(document.number);
    if (number == kServerTooOld)
        return {kTransportError, procedure.tooOldSource,
                L"This Corvane for MS Office add-in must be used with a server where Corvane 8.0 or higher has been "
                L"installed."};
    if (!document.source || !document.description) return NullError(procedure.source);
    return {number, *document.source, *document.description};
}

Error OpenError(bool invalidUrl, const ServiceProcedure& procedure)
{
    return {kTransportError, invalidUrl ? procedure.invalidUrlSource : procedure.source,
            invalidUrl ? L"Invalid URL." : L"Unable to contact server."};
}

Error SendError(std::wstring_view server, const ServiceProcedure& procedure)
{
    return {kTransportError, procedure.source, procedure.unreachableText(server)};
}

} // namespace corvane
