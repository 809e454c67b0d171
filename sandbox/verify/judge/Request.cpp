#include "judge/Request.h"

#include "judge/Failure.h"
#include "judge/Text.h"

#include <chrono>
#include <cstdio>
#include <nlohmann/json.hpp>

namespace verify
{
namespace
{

constexpr std::string_view kBoundary = "---------------------------998284F0-10C0-4D3B-8D1C-22EAA672A15D";
constexpr std::string_view kServices = "/WebServices/";

// Of "yyyy-mm-ddThh:mm:ss.mmmZ".
double SecondsOf(const std::string& time)
{
    int year = 0;
    unsigned month = 0;
    unsigned day = 0;
    int hour = 0;
    int minute = 0;
    double second = 0;
    const int read = std::sscanf(time.c_str(), "%d-%u-%uT%d:%d:%lfZ", &year, &month, &day, &hour, &minute, &second);
    Require(read == 6, time + " is no time");
    using namespace std::chrono;
    const sys_days date{year_month_day{std::chrono::year{year}, std::chrono::month{month}, std::chrono::day{day}}};
    return static_cast<double>((seconds{date.time_since_epoch()} + hours{hour} + minutes{minute}).count()) + second;
}

Request ReadRequest(const std::string& line)
{
    const auto json = nlohmann::json::parse(line);
    Request request{.time = SecondsOf(json.at("time")),
                    .method = json.at("method"),
                    .target = json.at("target"),
                    .headers = {},
                    .body = FromBase64(json.at("body").get<std::string>()),
                    .status = json.at("status")};
    for (const auto& header : json.at("headers"))
        request.headers.emplace_back(header.at(0), header.at(1));
    return request;
}

} // namespace

std::vector<Request> ReadLog(std::string_view log)
{
    std::vector<Request> requests;
    for (const auto& line : Lines(log))
        requests.push_back(ReadRequest(line));
    return requests;
}

std::string RequestLine(const Request& request)
{
    const std::string_view target = request.target;
    std::string line = request.method + " ";
    line += target.starts_with(kServices) ? target.substr(kServices.size()) : target;
    if (request.body.empty()) return line;
    if (!request.body.starts_with("--")) return line + "|" + ReadableUtf8(request.body);
    const auto upload = SplitUpload(request.body);
    return line + "|" + (upload ? ReadableUtf8(Joined(upload->head, " ")) : "an upload with a wrong boundary");
}

std::optional<Upload> SplitUpload(std::string_view body)
{
    const std::string first = "--" + std::string{kBoundary} + "\r\n";
    const std::string last = "\r\n--" + std::string{kBoundary} + "--\r\n";
    const auto end = body.find("\r\n\r\n");
    if (!body.starts_with(first) || end == std::string_view::npos) return std::nullopt;
    auto file = body.substr(end + 4);
    if (!file.ends_with(last)) return std::nullopt;
    file.remove_suffix(last.size());
    return Upload{Lines(body.substr(0, end).substr(first.size())), std::string{file}};
}

std::vector<std::string> Repeated(std::string_view line)
{
    const auto open = line.find('{');
    const auto close = open == std::string_view::npos ? open : line.find('}', open);
    if (close == std::string_view::npos) return {std::string{line}};
    std::vector<std::string> all;
    const auto rests = Repeated(line.substr(close + 1));
    const std::string choices = std::string{line.substr(open + 1, close - open - 1)} + ",";
    for (std::size_t at = 0; at < choices.size(); at = choices.find(',', at) + 1)
        for (const auto& rest : rests)
            all.push_back(std::string{line.substr(0, open)} + choices.substr(at, choices.find(',', at) - at) + rest);
    return all;
}

} // namespace verify
