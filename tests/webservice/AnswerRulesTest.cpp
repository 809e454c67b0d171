#include "webservice/AnswerRules.h"

#include <gtest/gtest.h>

namespace corvane
{
namespace
{

constexpr const wchar_t* kServer = L"http://host";
constexpr const wchar_t* kNoContact = L"Unable to contact server http://host.";
constexpr const wchar_t* kNoConnection = L"Unable to connect to server 'http://host'";
constexpr const wchar_t* kSecure = L"The server cannot be accessed or the page must be viewed over a secure channel.";
constexpr const wchar_t* kTooOld =
    L"This Corvane for MS Office add-in must be used with a server where Corvane 8.0 or higher has been installed.";

constexpr const wchar_t* kOperation = L"ExecuteASPWebService";
constexpr const wchar_t* kBinary = L"ExecuteASPWebserviceBinary";
constexpr const wchar_t* kUpload = L"ExecuteASPWSUploadFile";

// What every error document of these cases says besides its number.
constexpr const wchar_t* kSource = L"CUser.Get";
constexpr const wchar_t* kText = L"No access.";

struct ErrorCase
{
    const char* name;
    const ServiceProcedure& procedure;
    long status;
    const wchar_t* documentNumber; // null where the answer is no error document
    std::int32_t number;
    const wchar_t* source;
    std::wstring description;
};

std::wstring StatusText(int status)
{
    return L"Error: HTTP Status Code " + std::to_wstring(status) + L"\r\n\r\nRemote call to 'http://host' failed.\r\n";
}

Error ErrorOf(const ErrorCase& item)
{
    const AnswerMeaning meaning = MeaningOf(item.status, item.documentNumber != nullptr, item.procedure);
    EXPECT_NE(meaning, AnswerMeaning::Success);
    if (meaning == AnswerMeaning::ErrorDocument && item.documentNumber != nullptr)
        return DocumentError({item.documentNumber, kSource, kText}, item.procedure);
    return StatusError(meaning, item.status, kServer, L"<html>down</html>", item.procedure);
}

void ExpectError(const Error& error, std::int32_t number, std::wstring_view source, std::wstring_view description)
{
    EXPECT_EQ(error.Number(), number);
    EXPECT_EQ(error.Source(), source);
    EXPECT_EQ(error.Description(), description);
}

const ErrorCase kCases[] = {
    {"Unauthorised", kOperationCall, 401, nullptr, 225, kOperation, kNoContact},
    {"Missing", kOperationCall, 404, nullptr, 225, kOperation, kNoContact},
    {"FailedDependency", kOperationCall, 424, nullptr, 225, kOperation, kNoContact},
    {"Forbidden", kOperationCall, 403, nullptr, 225, kOperation, kSecure},
    {"MissingWinsOverItsDocument", kOperationCall, 404, L"5", 225, kOperation, kNoContact},
    {"ForbiddenWinsOverItsDocument", kOperationCall, 403, L"5", 225, kOperation, kSecure},
    {"PlainFailure", kOperationCall, 500, nullptr, 500, kOperation, StatusText(500)},
    {"PlainStatusOfSuccess", kOperationCall, 204, nullptr, 204, kOperation, StatusText(204)},
    {"DocumentOfSuccess", kOperationCall, 200, L"5", 5, kSource, kText},
    {"DocumentOfFailure", kOperationCall, 500, L"-2147170653", -2147170653, kSource, kText},
    {"DocumentOf509", kOperationCall, 509, L"5", 5, kSource, kText},
    {"NumberThatIsNone", kOperationCall, 200, L"none", -2147221504, kSource, kText},
    {"NumberZero", kOperationCall, 200, L"0", -2147221504, kSource, kText},
    {"NumberTooLarge", kOperationCall, 200, L"4294967296", -2147221504, kSource, kText},
    {"ServerTooOld", kOperationCall, 200, L"-2147219700", 225, kOperation, kTooOld},
    {"ServerTooOldWithAStatus", kOperationCall, 509, L"-2147219700", 225, kOperation, kTooOld},

    {"LogMissing", kAccessLogCall, 404, nullptr, 225, L"UpdateUserLog", kNoContact},
    {"LogFailedDependency", kAccessLogCall, 424, nullptr, 225, L"UpdateUserLog", kNoContact},
    {"LogForbidden", kAccessLogCall, 403, nullptr, 225, L"UpdateUserLog", kSecure},
    {"LogFailure", kAccessLogCall, 500, nullptr, 500, L"UpdateUserLog", StatusText(500)},
    {"LogTooOld", kAccessLogCall, 200, L"-2147219700", 225, L"UpdateUserLog", kTooOld},
    {"LogNumberThatIsNone", kAccessLogCall, 200, L"", -2147221504, kSource, kText},

    {"BinaryUnauthorised", kBinaryCall, 401, nullptr, 225, kBinary, kNoContact},
    {"BinaryMissing", kBinaryCall, 404, L"5", 225, kBinary, kNoContact},
    {"BinaryForbidden", kBinaryCall, 403, nullptr, 225, kBinary, kSecure},
    {"BinaryFailedDependency", kBinaryCall, 424, nullptr, 424, kBinary, StatusText(424)},
    {"BinaryDocument", kBinaryCall, 200, L"5", 5, kSource, kText},
    {"BinaryNumberZero", kBinaryCall, 200, L"0", 0, kSource, kText},
    {"BinaryNumberThatIsNone", kBinaryCall, 200, L"none", 13, kBinary, L"Type mismatch"},
    {"BinaryTooOld", kBinaryCall, 200, L"-2147219700", 225, L"ExecuteASPWebServiceBinary", kTooOld},

    {"UploadMissing", kUploadCall, 404, nullptr, 225, kUpload, kNoConnection},
    {"UploadMissingWithDocument", kUploadCall, 404, L"5", 225, kUpload, kNoConnection},
    {"UploadUnauthorised", kUploadCall, 401, nullptr, 401, kUpload, StatusText(401)},
    {"UploadForbidden", kUploadCall, 403, nullptr, 403, kUpload, StatusText(403)},
    {"UploadForbiddenWithDocument", kUploadCall, 403, L"5", 5, kSource, kText},
    {"UploadPlain509", kUploadCall, 509, nullptr, 509, kUpload, StatusText(509)},
    {"UploadNumberZero", kUploadCall, 200, L"0", -2147221504, kSource, kText},
    {"UploadTooOld", kUploadCall, 500, L"-2147219700", 225, kUpload, kTooOld},
};

} // namespace

TEST(AnswerRules, TurnEveryFailureIntoItsError)
{
    for (const ErrorCase& item : kCases) {
        SCOPED_TRACE(item.name);
        ExpectError(ErrorOf(item), item.number, item.source, item.description);
    }
}

TEST(AnswerRules, TakeAStatusOf200WithoutErrorDocumentForSuccess)
{
    for (const auto* procedure : {&kOperationCall, &kAccessLogCall, &kBinaryCall, &kUploadCall})
        EXPECT_EQ(MeaningOf(200, false, *procedure), AnswerMeaning::Success);
}

TEST(AnswerRules, LookForADocumentBehind509ExceptOfAnUpload)
{
    for (const auto* procedure : {&kOperationCall, &kAccessLogCall, &kBinaryCall})
        EXPECT_EQ(MeaningOf(509, false, *procedure), AnswerMeaning::ErrorDocument);
}

TEST(AnswerRules, KnowAnErrorDocumentByItsOpenerAnywhere)
{
    for (const auto* text : {L"<error number='1'/>", L"<ERROR/>", L"<r>\r\n<Error ", L"plain <eRRoR", L"<errors/>"})
        EXPECT_TRUE(IsErrorDocument(text)) << testing::PrintToString(text);
    for (const auto* text : {L"", L"<erro", L"error", L"< error", L"</error>", L"<e:error/>"})
        EXPECT_FALSE(IsErrorDocument(text)) << testing::PrintToString(text);
}

struct RequestCase
{
    const ServiceProcedure& procedure;
    const wchar_t* invalidUrlSource;
    const wchar_t* source;
    const wchar_t* sendText;
};

TEST(AnswerRules, TellAnUnusableAddressFromAServerOutOfReach)
{
    const RequestCase kRequests[] = {
        {kOperationCall, L"ExecuteASPWebservice", kOperation, kNoContact},
        {kAccessLogCall, L"UpdateUserLog", L"UpdateUserLog", kNoContact},
        {kBinaryCall, kBinary, kBinary, kNoContact},
    };
    for (const auto& item : kRequests) {
        SCOPED_TRACE(testing::PrintToString(item.source));
        ExpectError(OpenError(true, item.procedure), 225, item.invalidUrlSource, L"Invalid URL.");
        ExpectError(OpenError(false, item.procedure), 225, item.source, L"Unable to contact server.");
        ExpectError(SendError(kServer, item.procedure), 225, item.source, item.sendText);
    }
    ExpectError(SendError(kServer, kUploadCall), 225, kUpload, kNoConnection);
}

} // namespace corvane
