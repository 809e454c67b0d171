#include "webservice/Transfer.h"

#include "platform/CodePage.h"
#include "platform/Files.h"
#include "platform/MessageLoop.h"
#include "platform/Procedure.h"
#include "support/Conversions.h"
#include "webservice/Exchange.h"
#include "webservice/UploadBody.h"
#include "webservice/WebService.h"

#include <cstring>
#include <utility>

namespace corvane
{
namespace
{

constexpr const wchar_t* kTransferPage = L"UploadToTransfer.ashx";
constexpr std::chrono::seconds kPauseBetweenAttempts{1};

std::int32_t SizeLimit(const std::wstring& server)
{
    if (server.empty()) return 0;
    return ToLongSafe(QueryText(server, Operations::kMaxFileUploadSize, {std::wstring{L"MaxFileUploadSize"}}));
}

// The file's bytes between the upload's header and trailer, read in one attempt.
struct BodyAttempt
{
    ByteArray body;
    ReadAttempt outcome;
};

BodyAttempt ReadInto(const std::wstring& path, std::uint64_t length, const std::string& header,
                     const std::string& trailer)
{
    BodyAttempt attempt{ByteArray{header.size() + static_cast<std::size_t>(length) + trailer.size()},
                        {length, 0, true}};
    const auto bytes = attempt.body.Bytes();
    const auto file = bytes.subspan(header.size(), static_cast<std::size_t>(length));
    std::memcpy(bytes.data(), header.data(), header.size());
    std::memcpy(bytes.data() + header.size() + file.size(), trailer.data(), trailer.size());
    const std::size_t bytesRead = ReadFile(path, file);
    attempt.outcome.allZero = AllZero(file);
    // What could not be read to its end has to be tried again, whatever its length is.
    attempt.outcome.lengthAfter = bytesRead == file.size() ? FileLength(path).value_or(length) : bytesRead;
    return attempt;
}

// Reads a path that the ANSI code page cannot hold from a copy in the temporary folder.
class ReadablePath
{
public:
    explicit ReadablePath(const std::wstring& path) : m_path{path}
    {
        if (FitsCodePage(path)) return;
        m_copy.emplace(L"tmp");
        CopyWholeFile(path, m_copy->Path()); // what cannot be copied yet reads as unfinished
    }
    [[nodiscard]] const std::wstring& Get() const noexcept { return m_copy ? m_copy->Path() : m_path; }

private:
    std::wstring m_path;
    std::optional<TemporaryFile> m_copy;
};

ByteArray ReadBody(const std::wstring& server, const std::wstring& path, const std::wstring& uploadName)
{
    const std::int32_t limit = SizeLimit(server);
    const std::string header = UploadHeader(uploadName);
    const std::string trailer = UploadTrailer();
    std::uint64_t length = 0;
    for (int attempt = 1; attempt <= kReadAttempts; ++attempt) {
        const ReadablePath readable{path};
        if (attempt > 1) PumpFor(kPauseBetweenAttempts);
        length = FileLength(readable.Get()).value_or(length);
        if (std::cmp_greater(length, limit))
            throw Error{kTransportError, kUploadCall.source,
                        L"File size is greater than maximum allowed. Please contact your server administrator."};
        if (length == 0) continue;
        BodyAttempt read = ReadInto(readable.Get(), length, header, trailer);
        if (IsComplete(read.outcome)) return std::move(read.body);
    }
    throw Error{kTransportError, kUploadCall.source,
                L"\r\n\r\n            Please retry your Save to Corvane. If the problem persists, please contact your "
                L"Administrator.\r\n\r\n"};
}

} // namespace

void ExecuteASPWSUploadFile(const std::wstring& sServer, const std::wstring& sFilePath, const std::wstring& sUploadName)
{
    const ProcedureScope scope{L"WebService.ExecuteASPWSUploadFile"};
    ByteArray body = ReadBody(sServer, sFilePath, sUploadName);
    const auto limit = RequestLimit(body.Bytes().size());
    HttpRequest request;
    request.Open(L"POST", Endpoint(sServer, kTransferPage));
    request.SetHeader(L"Content-Type", L"multipart/form-data; boundary=" + std::wstring{kUploadBoundary});
    request.SetHeader(L"CharSet", L"UTF-8");
    Exchange(request, kUploadCall, kTransferPage, sServer, limit, [&] { request.Send(std::move(body)); });
}

BinaryStream ExecuteASPWebserviceBinary(const std::wstring& sServer, const std::wstring& sWebService,
                                        const std::wstring& sOperation, const Parameters& vParams)
{
    const ProcedureScope scope{L"WebService.ExecuteASPWebserviceBinary"};
    BinaryStream stream;
    HttpRequest request;
    OpenRequest(kBinaryCall, [&] {
        request.Open(L"GET", Endpoint(sServer, sWebService) + L"?" + RequestQuery(sOperation, vParams));
    });
    Exchange(request, kBinaryCall, sOperation, sServer, RequestLimit(), [&] { request.Send(); });
    stream.Write(request.Body());
    return stream;
}

} // namespace corvane
