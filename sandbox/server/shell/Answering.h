// What a request is answered: by the site, unless a rule of the faults file says otherwise.
#pragma once

#include "core/Http.h"
#include "shell/Faults.h"
#include "shell/RequestLog.h"

#include <functional>
#include <string>

namespace server
{

using Handler = std::function<Answer(const Request&)>;

// The bytes to send, and the fault that says when, and what becomes of the connection afterwards.
struct Response
{
    std::string bytes;
    Fault fault;
};

// Answers requests and logs them. Log and faults outlive this object.
class Answering
{
public:
    Answering(Handler handler, RequestLog& log, Faults& faults)
        : m_handler{std::move(handler)}, m_log{log}, m_faults{faults}
    {}

    [[nodiscard]] Response RespondTo(const Request& request);

    // Whether a response has to wait still.
    [[nodiscard]] bool Holds(const Response& response) { return m_faults.Holds(response.fault); }

private:
    [[nodiscard]] Fault NextFault(const Request& request);
    [[nodiscard]] Answer AnswerTo(const Request& request, const Fault& fault);

    Handler m_handler;
    RequestLog& m_log;
    Faults& m_faults;
};

// The part of an answer that is sent before the connection is cut. A body that is announced but empty is announced one
// byte long, so that the cut shows.
[[nodiscard]] std::string CutAnswer(const Answer& answer, Drop drop);

} // namespace server
