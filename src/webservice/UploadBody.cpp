#include "webservice/UploadBody.h"

#include "platform/Utf8.h"

#include <algorithm>

namespace corvane
{

std::string UploadHeader(std::wstring_view uploadName)
{
    std::wstring header = L"--";
    header.append(kUploadBoundary).append(L"\r\nContent-Disposition: form-data; name=\"FileField\"; filename=\"");
    return ToUtf8(header.append(uploadName).append(L"\"\r\nContent-Type: application/upload\r\n\r\n"));
}

std::string UploadTrailer() { return ToUtf8(L"\r\n--" + std::wstring{kUploadBoundary} + L"--\r\n"); }

bool AllZero(std::span<const std::byte> bytes) noexcept
{
    return std::all_of(bytes.begin(), bytes.end(), [](std::byte byte) { return byte == std::byte{0}; });
}

} // namespace corvane
