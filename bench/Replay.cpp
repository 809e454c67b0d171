// Recorded requests through bare XMLHTTP objects: how long they take.
#include "BareRequest.h"
#include "Benchmarks.h"
#include "Measure.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <utility>
#include <vector>

namespace bench
{
namespace
{

// A request as the script wrote it: a line with method and target, lines of headers, an empty line, the body.
struct Request
{
    explicit Request(const std::filesystem::path& path)
    {
        std::ifstream file{path, std::ios::binary};
        std::string line;
        std::getline(file, line);
        std::istringstream{line} >> method >> target;
        while (std::getline(file, line) && !line.empty())
            headers.emplace_back(line.substr(0, line.find(": ")), line.substr(line.find(": ") + 2));
        body.assign(std::istreambuf_iterator<char>{file}, {});
    }

    std::string method;
    std::string target;
    std::vector<std::pair<std::string, std::string>> headers;
    std::string body;
};

std::wstring Widen(const std::string& text)
{
    std::wstring wide;
    for (const char letter : text)
        wide += static_cast<wchar_t>(static_cast<unsigned char>(letter));
    return wide;
}

void Send(const std::wstring& server, const Request& request)
{
    BareRequest bare;
    bare.Open(Widen(request.method), server + Widen(request.target));
    for (const auto& [name, value] : request.headers)
        bare.SetHeader(Widen(name), Widen(value));
    ByteBlock body{request.body.size()};
    request.body.copy(body.Data(), request.body.size());
    bare.Send(request.body.empty() ? nullptr : body.Array());
}

std::vector<Request> ReadRequests(const std::filesystem::path& folder)
{
    std::vector<Request> requests;
    for (int number = 1; std::filesystem::exists(folder / std::to_wstring(number)); ++number)
        requests.emplace_back(folder / std::to_wstring(number));
    return requests;
}

} // namespace

void WarmUp() { BareRequest{}.Open(L"GET", L"http://127.0.0.1/"); }

void ReplayRequests(const Words& words)
{
    const std::vector<Request> requests = ReadRequests(words[1]);
    WarmUp();
    const Stopwatch watch;
    for (const Request& request : requests)
        Send(words[0], request);
    Tell("time", watch.Milliseconds());
    Tell("requests", static_cast<double>(requests.size()));
}

} // namespace bench
