// Requests and answers of HTTP, and the heads of both as text.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace server
{

using Headers = std::vector<std::pair<std::string, std::string>>;

// A request exactly as it arrived: bytes, header order and letter case are kept.
struct Request
{
    std::string method;
    std::string target;
    Headers headers;
    std::string body;

    // The value of the first header of that name (any letter case), empty when there is none.
    [[nodiscard]] std::string_view Header(std::string_view name) const;
    [[nodiscard]] std::string_view Path() const;
    [[nodiscard]] std::string_view Query() const;
};

struct Answer
{
    int status = 200;
    std::string contentType = "text/plain; charset=utf-8";
    std::string body;
    Headers headers = {};
};

// Request line and headers up to the empty line; nothing when it is not HTTP/1.x.
[[nodiscard]] std::optional<Request> ParseHead(std::string_view head);

// Status line and headers with the empty line. The connection is always closed after one answer, so that a client never
// meets a connection that is being closed, nor silently repeats a request on a new one.
[[nodiscard]] std::string FormatHead(const Answer& answer, std::size_t contentLength);

} // namespace server
