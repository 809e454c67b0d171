#include "webservice/UploadBody.h"

#include "platform/Utf8.h"

#include <algorithm>

namespace corvane
{

std::string UploadHeader(std::wstring_view uploadName)
{
    std::wstring header = L"--";
    header.append(kUploadBoundary).append(L"\r\n");
    header.append(L"Content-Disposition: form-data; name=\"FileField\"; filename=\"")
        .append(uploadName)
        .append(L"\"\r\n");
    header.append(L"Content-Type: application/upload\r\n\r\n");
    return ToUtf8(header);
}

std::string UploadTrailer()
{
    std::wstring trailer = L"\r\n--";
    trailer.append(kUploadBoundary).append(L"--\r\n");
    return ToUtf8(trailer);
}

bool AllZero(std::span<const std::byte> bytes) noexcept
{
    return std::all_of(bytes.begin(), bytes.end(), [](std::byte byte) { return byte == std::byte{0}; });
}

} // namespace corvane
