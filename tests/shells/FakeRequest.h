// An XMLHTTP request whose transport behaves as a test wants.
#pragma once

#include <windows.h>

#include <functional>
#include <map>
#include <msxml2.h>
#include <string>
#include <utility>
#include <vector>

// The class that requests are made of.
inline constexpr CLSID kXmlHttp3 = {0xF5078F35, 0xC551, 0x11D3, {0x89, 0xB9, 0x00, 0x00, 0xF8, 0x1F, 0xE2, 0x21}};

// Lives on the stack and counts its references.
class FakeRequest final : public IXMLHTTPRequest
{
public:
    long readyState = 4; // once sent
    HRESULT openResult = S_OK;
    HRESULT headerResult = S_OK;
    HRESULT statusResult = S_OK;
    long status = 200;
    const wchar_t* text = L"12";                    // of every answer,
    std::map<std::wstring, const wchar_t*> answers; // but for requests that hold a part
    std::vector<std::wstring> asked;                // each as its method, address, headers' names and text
    std::wstring lastCached;                        // as the last request told it
    std::function<void()> onSend;
    std::string sent;                               // the bytes of the last binary body
    std::map<std::wstring, const wchar_t*> headers; // of every answer; with any, its body has no bytes
    std::string bytes;                              // of every answer that is read as such
    bool refusesDocuments = false;
    int aborted = 0;
    ULONG references = 0;

    // Gives it out as a new object of a class.
    std::function<HRESULT(REFIID, void**)> Creator()
    {
        return [this](REFIID id, void** object) { return QueryInterface(id, object); };
    }

    STDMETHODIMP QueryInterface(REFIID, void** object) override
    {
        *object = this;
        AddRef();
        return S_OK;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return ++references; }
    STDMETHODIMP_(ULONG) Release() override { return --references; }
    STDMETHODIMP GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
    STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
    STDMETHODIMP Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override
    {
        return E_NOTIMPL;
    }
    STDMETHODIMP open(BSTR method, BSTR url, VARIANT, VARIANT, VARIANT) override
    {
        asked.push_back(std::wstring{method} + L" " + url);
        m_opened = true;
        return openResult;
    }
    STDMETHODIMP setRequestHeader(BSTR name, BSTR value) override
    {
        if (name == std::wstring{L"lastCached"}) lastCached = value;
        asked.back().append(L" ").append(name);
        return headerResult;
    }
    STDMETHODIMP getResponseHeader(BSTR name, BSTR* value) override
    {
        *value = headers.contains(name) ? ::SysAllocString(headers[name]) : nullptr;
        return *value ? S_OK : S_FALSE;
    }
    STDMETHODIMP getAllResponseHeaders(BSTR*) override { return E_NOTIMPL; }
    STDMETHODIMP send(VARIANT body) override
    {
        // What fails to be sent has to be opened anew.
        if (!std::exchange(m_opened, false) || (body.vt == VT_DISPATCH && refusesDocuments)) return E_INVALIDARG;
        if (onSend) onSend();
        if (body.vt == VT_BSTR) asked.back().append(L"|").append(body.bstrVal);
        if (body.vt != (VT_ARRAY | VT_UI1)) return S_OK;
        sent.assign(static_cast<const char*>(body.parray->pvData), body.parray->rgsabound[0].cElements);
        return S_OK;
    }
    STDMETHODIMP abort() override { return ++aborted, S_OK; }
    STDMETHODIMP get_status(LONG* value) override { return *value = status, statusResult; }
    STDMETHODIMP get_statusText(BSTR*) override { return E_NOTIMPL; }
    STDMETHODIMP get_responseXML(IDispatch**) override { return E_NOTIMPL; }
    STDMETHODIMP get_responseText(BSTR* answer) override
    {
        *answer = ::SysAllocString(text);
        for (const auto& [part, own] : answers)
            if (asked.back().find(part) != std::wstring::npos) ::SysReAllocString(answer, own);
        return S_OK;
    }
    STDMETHODIMP get_responseBody(VARIANT* body) override
    {
        if (bytes.empty()) return headers.empty() ? E_NOTIMPL : S_OK;
        body->vt = VT_ARRAY | VT_UI1;
        body->parray = ::SafeArrayCreateVector(VT_UI1, 0, static_cast<ULONG>(bytes.size()));
        bytes.copy(static_cast<char*>(body->parray->pvData), bytes.size());
        return S_OK;
    }
    STDMETHODIMP get_responseStream(VARIANT*) override { return E_NOTIMPL; }
    STDMETHODIMP get_readyState(LONG* state) override { return *state = readyState, S_OK; }
    STDMETHODIMP put_onreadystatechange(IDispatch*) override { return S_OK; }

private:
    bool m_opened = false;
};
