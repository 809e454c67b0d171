#include "shell/Answering.h"

#include "shell/System.h"

#include <algorithm>

namespace server
{

namespace
{

void ApplyTo(Answer& answer, const Fault& fault)
{
    if (fault.status) answer.status = *fault.status;
    if (!fault.location.empty()) answer.headers.emplace_back("Location", fault.location);
    if (fault.body) {
        answer.body = *fault.body;
        answer.contentType = fault.body->starts_with('<') ? "text/xml; charset=utf-8" : "text/plain; charset=utf-8";
    }
    if (!fault.contentType.empty()) answer.contentType = fault.contentType;
}

} // namespace

std::string CutAnswer(const Answer& answer, Drop drop)
{
    if (drop == Drop::BeforeAnswer) return {};
    const bool whole = drop == Drop::Nowhere;
    const auto head = FormatHead(answer, whole ? answer.body.size() : std::max<std::size_t>(answer.body.size(), 1));
    if (whole) return head + answer.body;
    if (drop == Drop::WithinBody) return head + answer.body.substr(0, answer.body.size() / 2);
    if (drop == Drop::WithinStatus) return head.substr(0, head.find(' '));
    return head.substr(0, head.find("\r\n", head.find("\r\n") + 2) + 2);
}

Response Answering::RespondTo(const Request& request)
{
    Response response{.bytes = {}, .fault = NextFault(request)};
    const auto drop = response.fault.drop;
    const auto answer = AnswerTo(request, response.fault);
    m_log.Write(request, drop == Drop::BeforeAnswer ? 0 : answer.status);
    response.bytes = CutAnswer(answer, drop);
    return response;
}

Fault Answering::NextFault(const Request& request)
{
    try {
        return m_faults.Next(request.target, request.body).value_or(Fault{});
    } catch (const std::exception& problem) {
        PrintError(std::string{"corvane-server: faults file ignored: "} + problem.what() + '\n');
        return {};
    }
}

Answer Answering::AnswerTo(const Request& request, const Fault& fault)
{
    Answer answer;
    if (!fault.status && !fault.body && fault.drop != Drop::BeforeAnswer) answer = m_handler(request);
    ApplyTo(answer, fault);
    return answer;
}

} // namespace server
