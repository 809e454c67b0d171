// The header holds the name, and its UTF-8 is well-formed.
#include "webservice/UploadBody.h"
#include "Input.h"
#include "platform/Utf8.h"

namespace
{

// How many bytes follow a lead byte; -1 for a byte that is none.
int Following(unsigned char lead)
{
    if (lead < 0x80) return 0;
    if (lead >= 0xC2 && lead < 0xE0) return 1;
    if (lead >= 0xE0 && lead < 0xF0) return 2;
    return lead >= 0xF0 && lead < 0xF5 ? 3 : -1;
}

void RequireUtf8(const std::string& text)
{
    for (std::size_t index = 0; index < text.size(); ++index) {
        int following = Following(static_cast<unsigned char>(text[index]));
        Require(following >= 0);
        for (; following > 0; --following)
            Require(++index < text.size() && (static_cast<unsigned char>(text[index]) & 0xC0U) == 0x80U);
    }
}

} // namespace

void Fuzz(Input& input)
{
    const std::wstring name = input.Rest();
    const std::string header = corvane::UploadHeader(name);
    RequireUtf8(header);
    Require(header.ends_with("\"" + corvane::ToUtf8(name) + "\"\r\nContent-Type: application/upload\r\n\r\n") ||
            header.ends_with("\r\n\r\n"));
    Require(header.find("filename=\"" + corvane::ToUtf8(name) + "\"\r\n") != std::string::npos);
}
