#include "webservice/UploadBody.h"

#include <algorithm>

namespace corvane
{
namespace
{

constexpr std::uint32_t kReplacementCharacter = 0xFFFD;

constexpr bool IsHighSurrogate(std::uint32_t unit) { return unit >= 0xD800 && unit <= 0xDBFF; }
constexpr bool IsLowSurrogate(std::uint32_t unit) { return unit >= 0xDC00 && unit <= 0xDFFF; }

void AppendUtf8(std::string& utf8, std::uint32_t code)
{
    const auto add = [&utf8](std::uint32_t byte) { utf8 += static_cast<char>(byte); };
    if (code < 0x80) return add(code);
    if (code < 0x800) {
        add(0xC0U | (code >> 6U));
    } else if (code < 0x10000) {
        add(0xE0U | (code >> 12U));
        add(0x80U | ((code >> 6U) & 0x3FU));
    } else {
        add(0xF0U | (code >> 18U));
        add(0x80U | ((code >> 12U) & 0x3FU));
        add(0x80U | ((code >> 6U) & 0x3FU));
    }
    add(0x80U | (code & 0x3FU));
}

} // namespace

std::string ToUtf8(std::wstring_view text)
{
    std::string utf8;
    for (std::size_t index = 0; index < text.size(); ++index) {
        auto code = static_cast<std::uint32_t>(text[index]);
        const std::uint32_t next = index + 1 < text.size() ? static_cast<std::uint32_t>(text[index + 1]) : 0;
        if (IsHighSurrogate(code) && IsLowSurrogate(next)) {
            code = 0x10000U + ((code - 0xD800U) << 10U) + (next - 0xDC00U);
            ++index;
        }
        AppendUtf8(utf8, IsHighSurrogate(code) || IsLowSurrogate(code) ? kReplacementCharacter : code);
    }
    return utf8;
}

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
