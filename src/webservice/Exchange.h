// One exchange with the server under the rules of its procedure: open, send, wait, and judge the answer.
#pragma once

#include "platform/HttpRequest.h"
#include "webservice/AnswerRules.h"

#include <chrono>
#include <functional>
#include <optional>
#include <string>

namespace corvane
{

// How long a request may take; zero for no limit.
void SetRequestTimeout(std::chrono::milliseconds timeout) noexcept;

// The limit for a request that carries so many bytes: the time-out and a second for every 32 KiB; nothing for none.
[[nodiscard]] std::optional<std::chrono::milliseconds> RequestLimit(std::size_t bytes = 0) noexcept;

// Opens the request by the given steps; any failure of them becomes the procedure's open error.
void OpenRequest(const ServiceProcedure& procedure, const std::function<void()>& open);

// Sends the request by the given step and waits for its answer; any failure becomes the procedure's send error. Then
// returns the answer's text when the answer is a success, else throws the Error that it stands for.
std::wstring Exchange(HttpRequest& request, const ServiceProcedure& procedure, const std::wstring& server,
                      std::optional<std::chrono::milliseconds> limit, const std::function<void()>& send);

} // namespace corvane
