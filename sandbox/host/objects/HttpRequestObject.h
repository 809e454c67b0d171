// An HTTP component of the host's own in the place of the system's.
#pragma once

#include <atomic>
#include <string>
#include <thread>

#include <msxml2.h>
#include <winhttp.h>

#include "automation/AutomationObject.h"
#include "base/Text.h"
#include "platform/Owners.h"

__CRT_UUID_DECL(IXMLHTTPRequest, 0xED8C108D, 0x4349, 0x11D2, 0x91, 0xA4, 0x00, 0xC0, 0x4F, 0x79, 0x69, 0xE8)

namespace host
{

// The platform's XMLHTTP class 3.0.
inline constexpr CLSID kXmlHttpClass{0xF5078F35, 0xC551, 0x11D3, {0x89, 0xB9, 0x00, 0x00, 0xF8, 0x1F, 0xE2, 0x21}};

using HttpHandle = corvane::Unique<HINTERNET, ::WinHttpCloseHandle>;

// An XMLHTTP object over WinHTTP, for one request. It stands in where Wine's own, which keeps every body that it sent,
// would hide what an add-in keeps. Answers are text in UTF-8 or bytes; there are no documents and no events.
class HttpRequestObject final : public AutomationObject<IXMLHTTPRequest>
{
public:
    HttpRequestObject() : AutomationObject{L"XMLHTTPRequest"} {}

    STDMETHODIMP open(BSTR method, BSTR url, VARIANT isAsynchronous, VARIANT user, VARIANT password) override;
    STDMETHODIMP setRequestHeader(BSTR name, BSTR value) override;
    STDMETHODIMP send(VARIANT body) override;
    STDMETHODIMP abort() override; // waits for the exchange to end, as the destructor does
    STDMETHODIMP get_readyState(LONG* state) override { return *state = m_state, S_OK; }
    STDMETHODIMP get_status(LONG* status) override { return *status = m_status, S_OK; }
    STDMETHODIMP getResponseHeader(BSTR name, BSTR* value) override;
    STDMETHODIMP get_responseText(BSTR* text) override { return corvane::HandOut(Widen(m_answer), text); }
    STDMETHODIMP get_responseBody(VARIANT* body) override;

    STDMETHODIMP getAllResponseHeaders(BSTR*) override { return E_NOTIMPL; }
    STDMETHODIMP get_statusText(BSTR*) override { return E_NOTIMPL; }
    STDMETHODIMP get_responseXML(IDispatch**) override { return E_NOTIMPL; }
    STDMETHODIMP get_responseStream(VARIANT*) override { return E_NOTIMPL; }
    STDMETHODIMP put_onreadystatechange(IDispatch*) override { return E_NOTIMPL; }

private:
    void Exchange();

    std::wstring m_method;
    std::wstring m_url;
    std::wstring m_headers;
    std::string m_body;
    long m_status = 0;
    HttpHandle m_session;
    HttpHandle m_connection;
    HttpHandle m_request; // tells the headers of the answer
    std::string m_answer;
    std::atomic<long> m_state = 0;
    std::jthread m_exchange; // the last member, so that it has ended before the others go
};

} // namespace host
