#include "platform/HttpRequest.h"

#include "platform/AnswerWait.h"
#include "platform/Error.h"
#include "platform/HResult.h"
#include "platform/MessageLoop.h"
#include "platform/OwnerlessRequests.h"
#include "platform/Procedure.h"
#include "platform/SystemLibrary.h"
#include "platform/XmlDocument.h"

#include <shlwapi.h>

#include <cstdint>
#include <cwchar>
#include <string_view>
#include <utility>

namespace corvane
{
namespace
{

constexpr const wchar_t* kWaitSource = L"HttpRequest.Wait";
constexpr long kHeadersMayBeThere = 2;
constexpr long kComplete = 4;
constexpr long kNoContentOfWindows = 1223; // what the component makes of status 204
constexpr std::uint64_t kLargestAnswer = std::uint64_t{64} * 1024 * 1024;

// IXMLHTTPRequest and the XMLHTTP classes 3.0 and 6.0, as registered by the platform.
constexpr IID kRequest = {0xED8C108D, 0x4349, 0x11D2, {0x91, 0xA4, 0x00, 0xC0, 0x4F, 0x79, 0x69, 0xE8}};
constexpr CLSID kRequestClasses[] = {
    {0xF5078F35, 0xC551, 0x11D3, {0x89, 0xB9, 0x00, 0x00, 0xF8, 0x1F, 0xE2, 0x21}},
    {0x88D96A0A, 0xF192, 0x11D4, {0xA6, 0x5F, 0x00, 0x40, 0x96, 0x32, 0x51, 0xE5}},
};

long StateOf(IXMLHTTPRequest& request)
{
    long state = 0;
    Check(request.get_readyState(&state), kWaitSource);
    return state;
}

// The system keeps answers and gives them again to a later GET of the same address, as a browser's; every question to
// the server is meant anew. Only so can it be said without a header of ours on the wire.
void ForgetAnswer(const std::wstring& url) noexcept
{
    using Delete = BOOL(WINAPI*)(LPCWSTR url);
    static const HMODULE wininet = LoadSystemLibrary(L"wininet.dll");
    static const auto forget =
        reinterpret_cast<Delete>(reinterpret_cast<void*>(::GetProcAddress(wininet, "DeleteUrlCacheEntryW")));
    if (forget != nullptr) forget(url.c_str());
}

[[noreturn]] void ThrowTransportFailure() { throw Error{ErrorNumberOf(E_FAIL), kWaitSource, MessageOf(E_FAIL)}; }

} // namespace

HttpRequest::HttpRequest()
{
    HRESULT result = REGDB_E_CLASSNOTREG;
    for (const CLSID& classId : kRequestClasses) {
        result = ::CoCreateInstance(classId, nullptr, CLSCTX_INPROC_SERVER, kRequest,
                                    reinterpret_cast<void**>(m_request.ReleaseAndGetAddressOf()));
        if (SUCCEEDED(result)) return;
    }
    throw Error{ErrorNumberOf(result), L"HttpRequest.HttpRequest",
                L"The HTTP component of the system cannot be created."};
}

HttpRequest::HttpRequest(HttpRequest&& other) noexcept
    : m_request{std::move(other.m_request)}, m_status{other.m_status}, m_underWay{
                                                                           std::exchange(other.m_underWay, false)}
{}

HttpRequest& HttpRequest::operator=(HttpRequest other) noexcept
{
    std::swap(m_request, other.m_request);
    std::swap(m_status, other.m_status);
    std::swap(m_underWay, other.m_underWay);
    return *this;
}

HttpRequest::~HttpRequest()
{
    if (m_underWay) LetGoOf(std::move(m_request));
}

void HttpRequest::Open(const wchar_t* method, const std::wstring& url)
{
    const Variant none;
    if (std::wstring_view{method} == L"GET") ForgetAnswer(url);
    Check(m_request->open(Bstr{method}.Get(), Bstr{url}.Get(), Variant{true}.Get(), none.Get(), none.Get()),
          L"HttpRequest.Open");
}

void HttpRequest::SetHeader(const wchar_t* name, const std::wstring& value)
{
    Check(m_request->setRequestHeader(Bstr{name}.Get(), Bstr{value}.Get()), L"HttpRequest.SetHeader");
}

void HttpRequest::Send() { SendBody(Variant{}); }

void HttpRequest::Send(const std::wstring& text) { SendBody(Variant{text}); }

void HttpRequest::Send(ByteArray bytes) { SendBody(bytes.Detach()); }

void HttpRequest::Send(const XmlDocument& document) { SendBody(Variant{static_cast<IDispatch*>(document.Get())}); }

void HttpRequest::SendBody(const Variant& body)
{
    Check(m_request->send(body.Get()), L"HttpRequest.Send");
    m_underWay = true;
}

void HttpRequest::Wait(std::optional<std::chrono::milliseconds> limit)
{
    const AnswerWait wait;
    const auto hasEnded = [&] { return wait.IsEnded() || StateOf(*m_request.Get()) == kComplete || PromisesTooMuch(); };
    // Progress arrives as messages on this thread, so asking after each message misses nothing.
    if (PumpUntil(hasEnded, limit) != WaitEnd::Done || StateOf(*m_request.Get()) != kComplete) ThrowTransportFailure();
    m_underWay = false;
    // The component reports a failed transport as a status of its own outside HTTP's range, or by refusing to tell.
    Check(m_request->get_status(&m_status), kWaitSource);
    if (m_status == kNoContentOfWindows) m_status = 204;
    if (m_status < 100 || m_status > 599 || !IsWhole()) ThrowTransportFailure();
}

std::wstring HttpRequest::AnswerHeader(const wchar_t* name) const
{
    Bstr value;
    m_request->getResponseHeader(Bstr{name}.Get(), value.Put());
    return value.Text();
}

std::uint64_t HttpRequest::PromisedLength() const
{
    return std::wcstoull(AnswerHeader(L"Content-Length").c_str(), nullptr, 10);
}

bool HttpRequest::PromisesTooMuch() const
{
    return StateOf(*m_request.Get()) >= kHeadersMayBeThere && PromisedLength() > kLargestAnswer;
}

bool HttpRequest::IsWhole() const
{
    Variant body;
    if (FAILED(m_request->get_responseBody(body.Put()))) return true;
    const std::uint64_t received = BytesIn(body.Get()).size();
    if (received > kLargestAnswer) return false;
    // The component may pass off the beginning of an answer as the whole when the connection breaks. The length of an
    // encoded one tells nothing of what it decodes to, and the header that says so may have gone with the decoding.
    const bool wasEncoded = !AnswerHeader(L"Content-Encoding").empty() ||
                            ::StrStrIW(AnswerHeader(L"Vary").c_str(), L"Accept-Encoding") != nullptr;
    return wasEncoded || PromisedLength() <= received;
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
    Check(m_request->get_responseBody(body.Put()), L"HttpRequest.Body");
    return body;
}

} // namespace corvane
