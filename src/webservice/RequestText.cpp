#include "webservice/RequestText.h"

#include "support/CFastString.h"

namespace corvane
{
namespace
{

constexpr std::wstring_view kProtocolVersion = L"v6";
constexpr std::uint32_t kReplacementCharacter = 0xFFFD;

struct ParameterTextOf
{
    std::wstring operator()(std::monostate) const { return {}; }
    std::wstring operator()(bool value) const { return value ? L"True" : L"False"; }
    std::wstring operator()(std::int32_t value) const { return std::to_wstring(value); }
    std::wstring operator()(const std::wstring& value) const { return value; }
};

constexpr bool IsPlain(wchar_t unit)
{
    return (unit >= L'0' && unit <= L'9') || (unit >= L'A' && unit <= L'Z') || (unit >= L'a' && unit <= L'z') ||
           (unit >= 128 && unit <= 255);
}

std::wstring PercentCoded(std::uint32_t byte)
{
    constexpr std::wstring_view kDigits = L"0123456789ABCDEF";
    return {L'%', kDigits[byte >> 4U], kDigits[byte & 0xFU]};
}

// A code unit above 255 in UTF-8, two or three bytes; half of a surrogate pair becomes the replacement character.
std::wstring PercentCodedUtf8(std::uint32_t unit)
{
    if (unit >= 0xD800 && unit <= 0xDFFF) unit = kReplacementCharacter;
    if (unit < 0x800) return PercentCoded(0xC0U | (unit >> 6U)) + PercentCoded(0x80U | (unit & 0x3FU));
    return PercentCoded(0xE0U | (unit >> 12U)) + PercentCoded(0x80U | ((unit >> 6U) & 0x3FU)) +
           PercentCoded(0x80U | (unit & 0x3FU));
}

std::wstring Encoded(wchar_t unit)
{
    if (IsPlain(unit)) return {unit};
    if (unit == L' ') return L"+";
    const auto code = static_cast<std::uint32_t>(unit) & 0xFFFFU;
    return code < 128 ? PercentCoded(code) : PercentCodedUtf8(code);
}

} // namespace

std::wstring ParameterText(const Parameter& parameter) { return std::visit(ParameterTextOf{}, parameter); }

std::wstring EncodeURLParameter(std::wstring_view text)
{
    CFastString encoded;
    for (const wchar_t unit : text)
        encoded.Append(Encoded(unit));
    return encoded.ToString().value_or(L"");
}

std::wstring RequestQuery(std::wstring_view operation, const Parameters& parameters)
{
    std::wstring query = L"Op=" + std::wstring{operation} + L"&P1=" + std::wstring{kProtocolVersion};
    // The server takes the k-th parameter under the even number 2k.
    std::size_t number = 2;
    for (const Parameter& parameter : parameters) {
        query += L"&P" + std::to_wstring(number) + L"=" + EncodeURLParameter(ParameterText(parameter));
        number += 2;
    }
    return query;
}

std::wstring Endpoint(std::wstring_view server, std::wstring_view page)
{
    return std::wstring{server} + L"/WebServices/" + std::wstring{page};
}

} // namespace corvane
