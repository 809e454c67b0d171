#include "core/Site.h"

#include "core/Multipart.h"
#include "core/Operations.h"
#include "core/Page.h"

#include <array>
#include <charconv>

namespace server
{

namespace
{

int NumberIn(const Fields& fields, std::string_view name)
{
    int value = 0;
    if (const auto found = fields.find(name); found != fields.end())
        std::from_chars(found->second.data(), found->second.data() + found->second.size(), value);
    return value;
}

std::optional<TargetKind> KindOfPage(const Fields& fields)
{
    const auto page = fields.find("P");
    if (page == fields.end()) return std::nullopt;
    if (page->second == "DD") return TargetKind::Deliverable;
    if (page->second == "AD") return TargetKind::Activity;
    if (page->second == "GD") return TargetKind::GateDocument;
    return page->second == "RFD" ? std::optional{TargetKind::RelatedFile} : std::nullopt;
}

const char* IdField(TargetKind kind)
{
    if (kind == TargetKind::GateDocument) return "GDID";
    return kind == TargetKind::RelatedFile ? "RFID" : "DID";
}

std::string PercentEncode(std::string_view text)
{
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    std::string encoded;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        encoded += '%';
        encoded += kDigits[byte >> 4];
        encoded += kDigits[byte & 0xF];
    }
    return encoded;
}

Answer Download(const Archive& files, const Target& target, int number)
{
    for (const auto& version : target.versions) {
        if (version.number != number) continue;
        auto bytes = files.Read(version);
        if (!bytes) break;
        return {.contentType = "application/octet-stream",
                .body = std::move(*bytes),
                .headers = {{"Content-Disposition", "attachment; filename*=UTF-8''" + PercentEncode(version.file)}}};
    }
    return NotFoundPage();
}

} // namespace

Answer Site::Handle(const Request& request) noexcept
{
    try {
        return Route(request);
    } catch (const std::exception& failure) {
        return {.status = 500, .body = failure.what()};
    }
}

Answer Site::Route(const Request& request)
{
    if (request.method != "GET" && request.method != "POST")
        return {.status = 405, .body = "Only GET and POST are answered.", .headers = {{"Allow", "GET, POST"}}};
    const auto path = request.Path();
    if (path == "/WebServices/offi.asp") return WebService(request);
    if (path == "/WebServices/UploadToTransfer.ashx") return Upload(request);
    return path == "/" || path.empty() ? Page(request) : NotFoundPage();
}

Answer Site::WebService(const Request& request)
{
    auto fields = DecodeFields(request.Query());
    if (request.method == "POST") fields.merge(DecodeFields(request.body));
    return RunOperation(m_service, fields);
}

Answer Site::Upload(const Request& request)
{
    const auto upload = ParseUpload(request.Header("Content-Type"), request.body);
    if (!upload)
        return ErrorAnswer(
            {ErrorNumber::InvalidRequest, "UploadToTransfer", "The request is not an upload of one file."});
    if (static_cast<long long>(upload->bytes.size()) > m_service.GetSettings().maxFileUploadSize)
        return ErrorAnswer(
            {ErrorNumber::InvalidRequest, "UploadToTransfer", "The file is larger than the server allows."});
    m_service.Files().KeepUpload(upload->name, upload->bytes);
    return TextAnswer("Received " + std::to_string(upload->bytes.size()) + " bytes.");
}

Answer Site::Page(const Request& request)
{
    const auto fields = DecodeFields(request.Query());
    if (fields.empty()) return IndexPage(m_service);
    const auto kind = KindOfPage(fields);
    if (!kind) return NotFoundPage();
    const auto place = m_service.Shown().Find(*kind, NumberIn(fields, IdField(*kind)));
    if (!place || place->project->id != NumberIn(fields, "PID")) return NotFoundPage();
    if (fields.contains("Version")) return Download(m_service.Files(), place->GetTarget(), NumberIn(fields, "Version"));
    return TargetPage(*place, *kind);
}

} // namespace server
