#include "platform/HttpRequest.h"

#include "platform/Error.h"
#include "platform/HResult.h"
#include "platform/MessageLoop.h"
#include "platform/XmlDocument.h"

namespace corvane
{
namespace
{

constexpr const wchar_t* kSource = L"HttpRequest";
constexpr long kComplete = 4;

// IXMLHTTPRequest and the XMLHTTP classes 3.0 and 6.0, as registered by the platform.
constexpr IID kRequest = {0xED8C108D, 0x4349, 0x11D2, {0x91, 0xA4, 0x00, 0xC0, 0x4F, 0x79, 0x69, 0xE8}};
constexpr CLSID kRequestClasses[] = {
    {0xF5078F35, 0xC551, 0x11D3, {0x89, 0xB9, 0x00, 0x00, 0xF8, 0x1F, 0xE2, 0x21}},
    {0x88D96A0A, 0xF192, 0x11D4, {0xA6, 0x5F, 0x00, 0x40, 0x96, 0x32, 0x51, 0xE5}},
};

[[noreturn]] void ThrowTransportFailure() { throw Error{ErrorNumberOf(E_FAIL), kSource, MessageOf(E_FAIL)}; }

} // namespace

HttpRequest::HttpRequest()
{
    HRESULT result = REGDB_E_CLASSNOTREG;
    for (const CLSID& classId : kRequestClasses) {
        result = ::CoCreateInstance(classId, nullptr, CLSCTX_INPROC_SERVER, kRequest,
                                    reinterpret_cast<void**>(m_request.ReleaseAndGetAddressOf()));
        if (SUCCEEDED(result)) return;
    }
    throw Error{ErrorNumberOf(result), kSource, L"The HTTP component of the system cannot be created."};
}

HttpRequest::~HttpRequest()
{
    if (m_underWay) m_request->abort();
}

void HttpRequest::Open(const wchar_t* method, const std::wstring& url)
{
    const Variant none;
    Check(m_request->open(Bstr{method}.Get(), Bstr{url}.Get(), Variant{true}.Get(), none.Get(), none.Get()), kSource);
}

void HttpRequest::SetHeader(const wchar_t* name, const std::wstring& value)
{
    Check(m_request->setRequestHeader(Bstr{name}.Get(), Bstr{value}.Get()), kSource);
}

void HttpRequest::Send() { SendBody(Variant{}); }

void HttpRequest::Send(const std::wstring& text) { SendBody(Variant{text}); }

void HttpRequest::Send(ByteArray bytes) { SendBody(bytes.Detach()); }

void HttpRequest::SendEmptyDocument()
{
    const XmlDocument empty;
    SendBody(Variant{static_cast<IDispatch*>(empty.Get())});
}

void HttpRequest::SendBody(const Variant& body)
{
    Check(m_request->send(body.Get()), kSource);
    m_underWay = true;
}

long HttpRequest::ReadyState() const
{
    long state = 0;
    Check(m_request->get_readyState(&state), kSource);
    return state;
}

void HttpRequest::Wait(std::optional<std::chrono::milliseconds> limit)
{
    // Progress arrives as messages on this thread, so asking after each message misses nothing.
    if (PumpUntil([this] { return ReadyState() == kComplete; }, limit) != WaitEnd::Done) ThrowTransportFailure();
    m_underWay = false;
    // The component reports a failed transport as a status of its own outside HTTP's range, or by refusing to tell.
    Check(m_request->get_status(&m_status), kSource);
    if (m_status < 100 || m_status > 599) ThrowTransportFailure();
}

std::wstring HttpRequest::Text() const
{
    Bstr text;
    m_request->get_responseText(text.Put());
    return text.Text();
}

Variant HttpRequest::Body() const
{
    Variant body;
    Check(m_request->get_responseBody(body.Put()), kSource);
    return body;
}

} // namespace corvane
