// One exchange with the server under the rules of its procedure: open, send, wait, and judge the answer.
#pragma once

#include "platform/HttpRequest.h"
#include "platform/Procedure.h"
#include "webservice/AnswerRules.h"

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace corvane
{

// How long a request may take; zero for no limit.
void SetRequestTimeout(std::chrono::milliseconds timeout) noexcept;

// The limit for a request that carries so many bytes: the time-out and a second for every 32 KiB; nothing for none.
[[nodiscard]] std::optional<std::chrono::milliseconds> RequestLimit(std::size_t bytes = 0) noexcept;

// Opens the request by the given steps; any failure of them becomes the procedure's open error.
template<class Open>
void OpenRequest(const ServiceProcedure& procedure, Open&& open)
{
    if (const auto failure = Catch(open)) throw OpenError(failure->Number() == E_FAIL, procedure);
}

// The text of the answer where it is a success; else throws the Error that the answer stands for.
std::wstring JudgeAnswer(const HttpRequest& request, const ServiceProcedure& procedure, const std::wstring& server);

// Writes to the process's trace how the request went. The server's messages to the user tell less.
void TraceRequest(const HttpRequest& request, std::wstring_view operation, std::wstring_view server) noexcept;

// Sends the request of an operation by the given step, waits for its answer and judges it; any failure until then
// becomes the procedure's send error.
template<class Send>
std::wstring Exchange(HttpRequest& request, const ServiceProcedure& procedure, std::wstring_view operation,
                      const std::wstring& server, std::optional<std::chrono::milliseconds> limit, Send&& send)
{
    const auto failure = Catch([&] {
        send();
        request.Wait(limit);
    });
    TraceRequest(request, operation, server);
    if (failure) throw SendError(server, procedure);
    return JudgeAnswer(request, procedure, server);
}

} // namespace corvane
