#include "webservice/AnswerRules.h"

#include <gtest/gtest.h>

namespace corvane
{

TEST(AnswerRules, TakeOnlyAStatusOf200WithoutErrorDocumentForSuccess)
{
    for (const auto* procedure : {&kOperationCall, &kAccessLogCall, &kBinaryCall, &kUploadCall}) {
        EXPECT_EQ(MeaningOf(200, false, *procedure), AnswerMeaning::Success);
        EXPECT_EQ(MeaningOf(204, false, *procedure), AnswerMeaning::HttpStatus);
    }
}

TEST(AnswerRules, KnowAnErrorDocumentByItsOpenerAnywhere)
{
    for (const auto* text : {L"<error number='1'/>", L"<ERROR/>", L"<r>\r\n<Error ", L"plain <eRRoR", L"<errors/>"})
        EXPECT_TRUE(IsErrorDocument(text)) << testing::PrintToString(text);
    for (const auto* text : {L"", L"<erro", L"error", L"< error", L"</error>", L"<e:error/>"})
        EXPECT_FALSE(IsErrorDocument(text)) << testing::PrintToString(text);
}

TEST(AnswerRules, MissTheWordsOfAnErrorDocument)
{
    EXPECT_EQ(DocumentError({L"5", L"Source", {}}, kOperationCall).Number(), 94);
    EXPECT_EQ(DocumentError({L"5", {}, L"Words"}, kOperationCall).Number(), 94);
}

TEST(AnswerRules, TellAnUnusableAddressUnderTheirOwnSource)
{
    const std::pair<const ServiceProcedure&, const wchar_t*> kSources[] = {
        {kOperationCall, L"ExecuteASPWebservice"},
        {kAccessLogCall, L"UpdateUserLog"},
        {kBinaryCall, L"ExecuteASPWebserviceBinary"},
        {kUploadCall, L"ExecuteASPWSUploadFile"},
    };
    for (const auto& [procedure, source] : kSources) {
        const Error error = OpenError(true, procedure);
        EXPECT_EQ(error.Number(), 225);
        EXPECT_EQ(error.Source(), source);
        EXPECT_EQ(error.Description(), L"Invalid URL.");
    }
}

} // namespace corvane
