// The requests that a server has logged, as scenarios write them.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace verify
{

struct Request
{
    double time = 0; // seconds since 1970
    std::string method;
    std::string target;
    std::vector<std::pair<std::string, std::string>> headers;
    std::string body;
    int status = 0;
};

// What a form of an upload holds: the lines of its head, and the file.
struct Upload
{
    std::vector<std::string> head;
    std::string file;
};

// Reads a server's log, a JSON object a line. Throws where it is none.
[[nodiscard]] std::vector<Request> ReadLog(std::string_view log);

// The method, the page with its query, and the body: of a form as it was sent, of an upload its head.
[[nodiscard]] std::string RequestLine(const Request& request);

// Nothing where the boundaries are not as they have to be.
[[nodiscard]] std::optional<Upload> SplitUpload(std::string_view body);

// The line once for every choice of its {a,b} parts, the last part changing first.
[[nodiscard]] std::vector<std::string> Repeated(std::string_view line);

} // namespace verify
