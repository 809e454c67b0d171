#include "webservice/Exchange.h"

#include "platform/XmlDocument.h"
#include "support/CTraceLog.h"
#include "webservice/RequestTrace.h"

namespace corvane
{
namespace
{

std::chrono::milliseconds g_timeout{0};

// The first "error" element of an answer and its three attributes.
ErrorDocument ReadErrorDocument(const std::wstring& text, const wchar_t* source)
{
    XmlDocument document;
    static_cast<void>(document.Load(text));
    const XmlNode error = document.SelectFirst(L"//error");
    if (!error) throw ObjectNotSet(source);
    const auto number = error.Attribute(L"number");
    if (!number) throw NullError(source);
    return {*number, error.Attribute(L"source"), error.Attribute(L"description")};
}

} // namespace

void SetRequestTimeout(std::chrono::milliseconds timeout) noexcept { g_timeout = timeout; }

std::optional<std::chrono::milliseconds> RequestLimit(std::size_t bytes) noexcept
{
    constexpr std::size_t kBytesPerSecond = std::size_t{32} * 1024;
    if (g_timeout.count() == 0) return std::nullopt;
    return g_timeout + std::chrono::seconds{bytes / kBytesPerSecond};
}

void TraceRequest(const HttpRequest& request, std::wstring_view operation, std::wstring_view server) noexcept
{
    if (g_oTraceLog == nullptr || !g_oTraceLog->IsEnabled()) return;
    Ignoring([&] { TraceText(RequestLine(operation, server, request.Facts())); });
}

std::wstring JudgeAnswer(const HttpRequest& request, const ServiceProcedure& procedure, const std::wstring& server)
{
    std::wstring text = request.Text();
    const AnswerMeaning meaning = MeaningOf(request.Status(), IsErrorDocument(text), procedure);
    if (meaning == AnswerMeaning::Success) return text;
    if (meaning == AnswerMeaning::ErrorDocument)
        throw DocumentError(ReadErrorDocument(text, procedure.source), procedure);
    throw StatusError(meaning, request.Status(), server, text, procedure);
}

} // namespace corvane
