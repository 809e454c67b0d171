#include "platform/HttpRequest.h"

#include "platform/AnswerWait.h"
#include "platform/Error.h"
#include "platform/HResult.h"
#include "platform/MessageLoop.h"
#include "platform/OwnerlessRequests.h"
#include "platform/Procedure.h"
#include "platform/SystemLibrary.h"
#include "platform/Utf8.h"
#include "platform/XmlDocument.h"

#include <shlwapi.h>

#include <algorithm>
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
    Ignoring([&] {
        static BOOL(WINAPI* const forget)(LPCWSTR url) = SystemFunction{L"wininet.dll", "DeleteUrlCacheEntryW"};
        forget(url.c_str());
    });
}

// PumpUntil that ticks whenever a second has passed.
WaitEnd PumpBySeconds(const std::function<bool()>& done, std::optional<std::chrono::milliseconds> limit,
                      const std::function<void()>& tick)
{
    constexpr std::chrono::milliseconds kSecond{1000};
    for (;;) {
        const auto piece = std::min(limit.value_or(kSecond), kSecond);
        const WaitEnd end = PumpUntil(done, piece);
        if (end != WaitEnd::TimedOut) return end;
        if (limit) *limit -= piece;
        if (limit && limit->count() <= 0) return end;
        tick();
    }
}

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

void HttpRequest::Send() { SendBody(Variant{}, 0); }

void HttpRequest::Send(const std::wstring& text) { SendBody(Variant{text}, ToUtf8(text).size()); }

void HttpRequest::Send(ByteArray bytes)
{
    const std::size_t size = bytes.Bytes().size();
    SendBody(bytes.Detach(), size);
}

void HttpRequest::Send(const XmlDocument& document) { SendBody(Variant{static_cast<IDispatch*>(document.Get())}, 0); }

void HttpRequest::SendBody(const Variant& body, std::size_t bytes)
{
    m_sent = std::chrono::steady_clock::now();
    Check(m_request->send(body.Get()), L"HttpRequest.Send");
    m_facts.sent = bytes;
    m_underWay = true;
}

void HttpRequest::Wait(std::optional<std::chrono::milliseconds> limit)
{
    AwaitEnd(limit);
    const auto time = std::chrono::steady_clock::now() - m_sent;
    m_facts.milliseconds = std::chrono::duration_cast<std::chrono::milliseconds>(time).count();
    if (m_facts.end == RequestEnd::Answered) ReadStatus();
    if (m_facts.end != RequestEnd::Answered) throw Error{ErrorNumberOf(E_FAIL), kWaitSource, MessageOf(E_FAIL)};
}

void HttpRequest::AwaitEnd(std::optional<std::chrono::milliseconds> limit)
{
    AnswerWait wait;
    Meanwhile::Do();
    const auto hasEnded = [&] { return wait.IsEnded() || StateOf(*m_request.Get()) == kComplete || PromisesTooMuch(); };
    // Progress arrives as messages on this thread, so asking after each message misses nothing.
    const WaitEnd end = PumpBySeconds(hasEnded, limit, [&] {
        const auto gone = std::chrono::steady_clock::now() - m_sent;
        wait.Tell({std::chrono::duration_cast<std::chrono::seconds>(gone), m_facts.sent});
    });
    if (end == WaitEnd::TimedOut) m_facts.end = RequestEnd::TimedOut;
    if (end == WaitEnd::Quit) m_facts.end = RequestEnd::ThreadEnded;
    if (end != WaitEnd::Done) return;
    if (StateOf(*m_request.Get()) == kComplete)
        m_facts.end = RequestEnd::Answered;
    else
        m_facts.end = wait.IsEnded() ? RequestEnd::EndedByUser : RequestEnd::CutShort;
}

// The component reports a failed transport as a status of its own outside HTTP's range, or by refusing to tell.
void HttpRequest::ReadStatus()
{
    m_underWay = false;
    m_facts.end = RequestEnd::TransportFailed;
    Check(m_request->get_status(&m_facts.status), kWaitSource);
    if (m_facts.status == kNoContentOfWindows) m_facts.status = 204;
    if (m_facts.status < 100 || m_facts.status > 599) return;
    m_facts.end = IsWhole() ? RequestEnd::Answered : RequestEnd::CutShort;
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

bool HttpRequest::IsWhole()
{
    Variant body;
    if (FAILED(m_request->get_responseBody(body.Put()))) return true;
    const std::uint64_t received = BytesIn(body.Get()).size();
    m_facts.received = static_cast<std::size_t>(received);
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
