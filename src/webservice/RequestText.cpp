#include "webservice/RequestText.h"

#include "platform/Utf8.h"
#include "support/CFastString.h"

#include <array>

namespace corvane
{
namespace
{

constexpr std::wstring_view kProtocolVersion = L"v6";

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

// Encoded text on its way into a string builder. A piece of the builder for each character would cost several times
// what the encoding does, so characters are gathered into longer ones.
class EncodedPieces
{
public:
    void Encode(wchar_t unit)
    {
        if (m_length + kLongestCode > m_piece.size()) Finish();
        const auto code = static_cast<std::uint32_t>(unit) & 0xFFFFU;
        if (IsPlain(unit))
            Add(unit);
        else if (unit == L' ')
            Add(L'+');
        else if (code < 128)
            AddByte(code);
        else
            AddUtf8(code);
    }

    [[nodiscard]] std::wstring Text()
    {
        if (m_length != 0) Finish();
        return m_builder.ToString().value_or(L"");
    }

private:
    static constexpr std::size_t kLongestCode = 9; // three bytes

    // A code unit above 255, also half of a surrogate pair: two or three bytes.
    void AddUtf8(std::uint32_t unit)
    {
        m_bytes.clear();
        AppendUtf8(m_bytes, unit);
        for (const char byte : m_bytes)
            AddByte(static_cast<unsigned char>(byte));
    }
    void AddByte(std::uint32_t byte)
    {
        constexpr std::wstring_view kDigits = L"0123456789ABCDEF";
        Add(L'%');
        Add(kDigits[byte >> 4U]);
        Add(kDigits[byte & 0xFU]);
    }
    void Add(wchar_t letter) { m_piece[m_length++] = letter; }
    void Finish()
    {
        m_builder.Append({m_piece.data(), m_length});
        m_length = 0;
    }

    CFastString m_builder;
    std::string m_bytes;
    std::array<wchar_t, 4096> m_piece{};
    std::size_t m_length = 0;
};

} // namespace

std::wstring ParameterText(const Parameter& parameter) { return std::visit(ParameterTextOf{}, parameter); }

std::wstring EncodeURLParameter(std::wstring_view text)
{
    EncodedPieces pieces;
    for (const wchar_t unit : text)
        pieces.Encode(unit);
    return pieces.Text();
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
