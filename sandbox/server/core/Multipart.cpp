#include "core/Multipart.h"

#include "core/Text.h"

namespace server
{

namespace
{

std::string Boundary(std::string_view contentType)
{
    constexpr std::string_view kMark = "boundary=";
    const auto at = contentType.find(kMark);
    if (at == std::string_view::npos || !ContainsNoCase(contentType.substr(0, at), "multipart/form-data")) return {};
    auto boundary = contentType.substr(at + kMark.size());
    boundary = boundary.substr(0, boundary.find(';'));
    if (boundary.size() > 1 && boundary.front() == '"' && boundary.back() == '"')
        boundary = boundary.substr(1, boundary.size() - 2);
    return std::string{boundary};
}

std::optional<std::string> FileName(std::string_view headers)
{
    constexpr std::string_view kMark = "filename=\"";
    const auto at = headers.find(kMark);
    if (at == std::string_view::npos) return std::nullopt;
    auto line = headers.substr(at + kMark.size());
    line = line.substr(0, line.find("\r\n"));
    const auto quote = line.rfind('"');
    if (quote == std::string_view::npos) return std::nullopt;
    return ToUtf8(line.substr(0, quote));
}

} // namespace

std::optional<UploadedFile> ParseUpload(std::string_view contentType, std::string_view body)
{
    constexpr std::string_view kEmptyLine = "\r\n\r\n";
    const auto boundary = Boundary(contentType);
    if (boundary.empty() || !body.starts_with("--" + boundary + "\r\n")) return std::nullopt;
    const auto headersEnd = body.find(kEmptyLine);
    // The file may hold the boundary itself, hence the search from the end.
    const auto fileEnd = body.rfind("\r\n--" + boundary + "--");
    if (headersEnd == std::string_view::npos || fileEnd == std::string_view::npos) return std::nullopt;
    const auto fileStart = headersEnd + kEmptyLine.size();
    auto name = FileName(body.substr(0, fileStart));
    if (!name || fileEnd < fileStart) return std::nullopt;
    return UploadedFile{std::move(*name), body.substr(fileStart, fileEnd - fileStart)};
}

} // namespace server
