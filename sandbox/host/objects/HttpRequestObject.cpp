#include "objects/HttpRequestObject.h"

#include <algorithm>

#include "platform/ByteArray.h"

namespace host
{
namespace
{

constexpr long kOpened = 1;
constexpr long kComplete = 4;
constexpr long kCannotConnect = 12029; // what XMLHTTP tells of a failed transport

// A body as it is sent: the bytes of an array, a text in UTF-8, the markup of a document.
std::string BytesOf(const VARIANT& body)
{
    const auto bytes = corvane::BytesIn(body);
    if (!bytes.empty()) return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
    if (body.vt == VT_BSTR) return Narrow(corvane::ViewOf(body.bstrVal));
    ComPtr<IXMLDOMDocument> document;
    Bstr markup;
    void** const place = reinterpret_cast<void**>(document.GetAddressOf());
    if (body.vt == VT_DISPATCH && SUCCEEDED(body.pdispVal->QueryInterface(IID_IXMLDOMDocument, place)))
        document->get_xml(markup.Put());
    return Narrow(markup.Text());
}

std::string AnswerOf(HINTERNET request)
{
    std::string answer;
    char part[4096];
    for (DWORD size = 0; ::WinHttpReadData(request, part, sizeof part, &size) && size > 0;)
        answer.append(part, size);
    return answer;
}

} // namespace

HRESULT HttpRequestObject::open(BSTR method, BSTR url, VARIANT, VARIANT, VARIANT)
{
    m_method = method;
    m_url = url;
    m_state = kOpened;
    return S_OK;
}

HRESULT HttpRequestObject::setRequestHeader(BSTR name, BSTR value)
{
    m_headers += std::wstring{name} + L": " + value + L"\r\n";
    return S_OK;
}

HRESULT HttpRequestObject::send(VARIANT body)
{
    m_body = BytesOf(body);
    m_exchange = std::jthread{[this, owner = ::GetCurrentThreadId()] {
        Exchange();
        m_state = kComplete;
        ::PostThreadMessageW(owner, WM_NULL, 0, 0); // a message is what the owner's wait wakes up by
    }};
    return S_OK;
}

void HttpRequestObject::Exchange()
{
    m_status = kCannotConnect;
    URL_COMPONENTS parts{};
    parts.dwStructSize = sizeof parts;
    parts.dwHostNameLength = parts.dwUrlPathLength = static_cast<DWORD>(-1);
    if (!::WinHttpCrackUrl(m_url.c_str(), 0, 0, &parts)) return;
    const std::wstring server{parts.lpszHostName, parts.dwHostNameLength};
    m_session = HttpHandle{::WinHttpOpen(nullptr, WINHTTP_ACCESS_TYPE_NO_PROXY, nullptr, nullptr, 0)};
    m_connection = HttpHandle{::WinHttpConnect(m_session.Get(), server.c_str(), parts.nPort, 0)};
    m_request = HttpHandle{::WinHttpOpenRequest(m_connection.Get(), m_method.c_str(), parts.lpszUrlPath, nullptr,
                                                nullptr, nullptr, WINHTTP_FLAG_ESCAPE_DISABLE)};
    const auto size = static_cast<DWORD>(m_body.size());
    if (!::WinHttpSendRequest(m_request.Get(), m_headers.empty() ? nullptr : m_headers.c_str(), static_cast<DWORD>(-1),
                              m_body.data(), size, size, 0) ||
        !::WinHttpReceiveResponse(m_request.Get(), nullptr))
        return;
    DWORD status = 0;
    DWORD length = sizeof status;
    ::WinHttpQueryHeaders(m_request.Get(), WINHTTP_QUERY_STATUS_CODE | WINHTTP_QUERY_FLAG_NUMBER, nullptr, &status,
                          &length, nullptr);
    m_answer = AnswerOf(m_request.Get());
    m_status = static_cast<long>(status);
}

HRESULT HttpRequestObject::abort()
{
    if (m_exchange.joinable()) m_exchange.join();
    return S_OK;
}

HRESULT HttpRequestObject::getResponseHeader(BSTR name, BSTR* value)
{
    wchar_t text[1024];
    DWORD size = sizeof text;
    if (::WinHttpQueryHeaders(m_request.Get(), WINHTTP_QUERY_CUSTOM, name, text, &size, nullptr))
        return corvane::HandOut(text, value);
    *value = nullptr;
    return S_FALSE;
}

HRESULT HttpRequestObject::get_responseBody(VARIANT* body)
{
    corvane::ByteArray bytes{m_answer.size()};
    std::ranges::copy(std::as_bytes(std::span{m_answer}), bytes.Bytes().begin());
    *body = bytes.Detach().Detach();
    return S_OK;
}

} // namespace host
