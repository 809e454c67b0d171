// The add-in's upload of a file, and a bare send of the same body.
#include "BareRequest.h"
#include "Benchmarks.h"
#include "Measure.h"
#include "webservice/Transfer.h"
#include "webservice/UploadBody.h"
#include "webservice/WebService.h"

#include <cstring>
#include <filesystem>
#include <fstream>

namespace bench
{
namespace
{

const std::wstring kUploadName = L"bench.pptx";

// What every upload asks first.
void AskForLimit(const std::wstring& server)
{
    const auto& operation = corvane::Operations::kMaxFileUploadSize;
    BareRequest request;
    request.Open(L"GET", corvane::Endpoint(server, corvane::kServicePage) + L"?" +
                             corvane::RequestQuery(operation.name, {std::wstring{L"MaxFileUploadSize"}}));
    request.Send(nullptr);
}

void SendBare(const std::wstring& server, const std::filesystem::path& path)
{
    const Stopwatch watch;
    AskForLimit(server);
    Tell("question", watch.Milliseconds());
    const std::string header = corvane::UploadHeader(kUploadName);
    const std::string trailer = corvane::UploadTrailer();
    const auto length = static_cast<std::size_t>(std::filesystem::file_size(path));
    ByteBlock body{header.size() + length + trailer.size()};
    std::memcpy(body.Data(), header.data(), header.size());
    std::ifstream{path, std::ios::binary}.read(body.Data() + header.size(), static_cast<std::streamsize>(length));
    std::memcpy(body.Data() + header.size() + length, trailer.data(), trailer.size());

    BareRequest request;
    request.Open(L"POST", server + L"/WebServices/UploadToTransfer.ashx");
    request.SetHeader(L"Content-Type", L"multipart/form-data; boundary=" + std::wstring{corvane::kUploadBoundary});
    request.Send(body.Array());
}

} // namespace

void Upload(const Words& words)
{
    const std::wstring& server = words[1];
    // The system's HTTP library is loaded, and the user known, before either is measured.
    corvane::SetAccessLogged(true);
    static_cast<void>(corvane::QueryText(server, corvane::Operations::kGetUserId, {}));
    const Stopwatch watch;
    if (words[0] == L"add-in")
        corvane::ExecuteASPWSUploadFile(server, words[2], kUploadName);
    else
        SendBare(server, words[2]);
    Tell("time", watch.Milliseconds());
    Tell("memory", PeakMemory());
}

} // namespace bench
