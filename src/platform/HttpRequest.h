// One HTTP request through the platform's XMLHTTP component.
#pragma once

#include "platform/ByteArray.h"
#include "platform/Owners.h"
#include "platform/RequestFacts.h"

#include <msxml2.h>

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>

namespace corvane
{

class XmlDocument;

// A request is opened, given headers, sent once and waited for; then its answer is read. Where a member throws Error,
// the number is the failed call's HRESULT.
class HttpRequest
{
public:
    // Throws Error when the machine has no XMLHTTP component.
    HttpRequest();
    HttpRequest(const HttpRequest&) = delete;
    HttpRequest& operator=(const HttpRequest&) = delete;
    // A request still under way is let go of (OwnerlessRequests.h).
    ~HttpRequest();

    // Opens the request asynchronously, without user name and password.
    void Open(const wchar_t* method, const std::wstring& url);
    void SetHeader(const wchar_t* name, const std::wstring& value);

    void Send();
    void Send(const std::wstring& text);
    void Send(ByteArray bytes);
    void Send(const XmlDocument& document);

    // Waits for the whole answer while messages are handled. Throws Error when the transport failed, when the answer is
    // shorter than it says or larger than 64 MiB, which is known as soon as the component tells the length, when the
    // limit passed first, when the user ends the wait (AnswerWait.h), or when the thread is told to end. No limit means
    // waiting for ever.
    void Wait(std::optional<std::chrono::milliseconds> limit);

    // The answer: its HTTP status, its text (empty when it cannot be read as text) and its bytes.
    [[nodiscard]] long Status() const noexcept { return m_facts.status; }
    [[nodiscard]] std::wstring Text() const;
    [[nodiscard]] Variant Body() const;

    // How it went, also after an error.
    [[nodiscard]] const RequestFacts& Facts() const noexcept { return m_facts; }

private:
    void SendBody(const Variant& body, std::size_t bytes);
    void AwaitEnd(std::optional<std::chrono::milliseconds> limit);
    void ReadStatus();
    [[nodiscard]] std::wstring AnswerHeader(const wchar_t* name) const;
    [[nodiscard]] std::uint64_t PromisedLength() const;
    [[nodiscard]] bool PromisesTooMuch() const;
    [[nodiscard]] bool IsWhole();

    ComPtr<IXMLHTTPRequest> m_request;
    RequestFacts m_facts;
    std::chrono::steady_clock::time_point m_sent;
    bool m_underWay = false;
};

} // namespace corvane
