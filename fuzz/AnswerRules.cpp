// Every answer has a meaning, and every error that it stands for has a number and a source.
#include "webservice/AnswerRules.h"
#include "Input.h"

void Fuzz(Input& input)
{
    using namespace corvane;
    constexpr const ServiceProcedure* kProcedures[] = {&kOperationCall, &kAccessLogCall, &kBinaryCall, &kUploadCall};
    const ServiceProcedure& procedure = *kProcedures[input.Number(0, 3)];
    const long status = input.Number(-1, 600);
    const std::wstring server = input.Text();
    const ErrorDocument document{input.Text(), input.Text(), input.Text()};
    const std::wstring text = input.Rest();
    const bool isDocument = IsErrorDocument(text);
    Require(IsErrorDocument(text + L"<ErrOr"));
    const AnswerMeaning meaning = MeaningOf(status, isDocument, procedure);
    Require((meaning == AnswerMeaning::Success) == (status == 200 && !isDocument));
    Require(StatusError(meaning, status, server, text, procedure).Source() == procedure.source);
    const Error error = DocumentError(document, procedure);
    Require(procedure.strictNumber || error.Number() != 0);
    Require(error.Description().find(L"<ServerURL>") == std::wstring::npos ||
            error.Description() == document.description);
    Require(SendError(server, procedure).Number() == kTransportError);
}
