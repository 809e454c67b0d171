#include "core/Http.h"

#include "core/Text.h"

#include <algorithm>

namespace server
{

namespace
{

std::string_view Trim(std::string_view text)
{
    const auto first = text.find_first_not_of(" \t");
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

std::string_view TakeLine(std::string_view& text)
{
    const auto end = text.find("\r\n");
    const auto line = text.substr(0, end);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 2);
    return line;
}

bool ParseRequestLine(std::string_view line, Request& request)
{
    const auto first = line.find(' ');
    const auto last = line.rfind(' ');
    if (first == std::string_view::npos || first == 0 || last <= first + 1) return false;
    if (!line.substr(last + 1).starts_with("HTTP/1.")) return false;
    request.method = line.substr(0, first);
    request.target = line.substr(first + 1, last - first - 1);
    return true;
}

std::string_view Reason(int status)
{
    switch (status) {
    case 200:
        return "OK";
    case 400:
        return "Bad Request";
    case 401:
        return "Unauthorized";
    case 403:
        return "Forbidden";
    case 404:
        return "Not Found";
    case 405:
        return "Method Not Allowed";
    case 411:
        return "Length Required";
    case 413:
        return "Payload Too Large";
    case 424:
        return "Failed Dependency";
    case 500:
        return "Internal Server Error";
    case 503:
        return "Service Unavailable";
    default:
        return "Status";
    }
}

} // namespace

std::string_view Request::Header(std::string_view name) const
{
    const auto found =
        std::ranges::find_if(headers, [&](const auto& header) { return EqualNoCase(header.first, name); });
    return found == headers.end() ? std::string_view{} : std::string_view{found->second};
}

std::string_view Request::Path() const { return std::string_view{target}.substr(0, target.find('?')); }

std::string_view Request::Query() const
{
    const auto mark = target.find('?');
    return mark == std::string::npos ? std::string_view{} : std::string_view{target}.substr(mark + 1);
}

std::optional<Request> ParseHead(std::string_view head)
{
    Request request;
    if (!ParseRequestLine(TakeLine(head), request)) return std::nullopt;
    for (auto line = TakeLine(head); !line.empty(); line = TakeLine(head)) {
        const auto colon = line.find(':');
        if (colon == std::string_view::npos || colon == 0) return std::nullopt;
        request.headers.emplace_back(line.substr(0, colon), Trim(line.substr(colon + 1)));
    }
    return request;
}

std::string FormatHead(const Answer& answer, std::size_t contentLength)
{
    std::string head = "HTTP/1.1 " + std::to_string(answer.status) + ' ' + std::string{Reason(answer.status)} + "\r\n";
    head += "Content-Type: " + answer.contentType + "\r\n";
    for (const auto& [name, value] : answer.headers)
        head.append(name).append(": ").append(value).append("\r\n");
    head += "Cache-Control: no-store\r\n";
    return head + "Content-Length: " + std::to_string(contentLength) + "\r\nConnection: close\r\n\r\n";
}

} // namespace server
