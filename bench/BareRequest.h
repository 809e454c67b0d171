// The platform's XMLHTTP component with nothing around it.
#pragma once

#include <windows.h>

#include <msxml2.h>
#include <oleauto.h>
#include <wrl/client.h>

#include <stdexcept>
#include <string>

namespace bench
{

inline void Require(HRESULT result, const char* what)
{
    if (FAILED(result)) throw std::runtime_error{what};
}

class BareRequest
{
public:
    BareRequest()
    {
        constexpr CLSID kXmlHttp = {0xF5078F35, 0xC551, 0x11D3, {0x89, 0xB9, 0x00, 0x00, 0xF8, 0x1F, 0xE2, 0x21}};
        constexpr IID kRequest = {0xED8C108D, 0x4349, 0x11D2, {0x91, 0xA4, 0x00, 0xC0, 0x4F, 0x79, 0x69, 0xE8}};
        Require(::CoCreateInstance(kXmlHttp, nullptr, CLSCTX_INPROC_SERVER, kRequest,
                                   reinterpret_cast<void**>(m_request.GetAddressOf())),
                "XMLHTTP");
    }

    void Open(const std::wstring& method, const std::wstring& url)
    {
        VARIANT asynchronous{};
        asynchronous.vt = VT_BOOL;
        asynchronous.boolVal = VARIANT_TRUE;
        Require(m_request->open(Text{method}.value, Text{url}.value, asynchronous, VARIANT{}, VARIANT{}), "open");
    }
    void SetHeader(const std::wstring& name, const std::wstring& value)
    {
        Require(m_request->setRequestHeader(Text{name}.value, Text{value}.value), "header");
    }
    // Sends a body (null for none) and waits for the answer; bytes stays the caller's.
    void Send(SAFEARRAY* bytes)
    {
        VARIANT body{};
        if (bytes != nullptr) {
            body.vt = VT_ARRAY | VT_UI1;
            body.parray = bytes;
        }
        Require(m_request->send(body), "send");
        long state = 0;
        while (m_request->get_readyState(&state) == S_OK && state != 4) {
            MSG message{};
            if (::GetMessageW(&message, nullptr, 0, 0) > 0) ::DispatchMessageW(&message);
        }
        long status = 0;
        if (FAILED(m_request->get_status(&status)) || status != 200) throw std::runtime_error{"the answer is not 200"};
    }

private:
    struct Text
    {
        explicit Text(const std::wstring& text) : value{::SysAllocString(text.c_str())} {}
        ~Text() { ::SysFreeString(value); }
        Text(const Text&) = delete;
        Text& operator=(const Text&) = delete;
        BSTR value;
    };

    Microsoft::WRL::ComPtr<IXMLHTTPRequest> m_request;
};

// Owns an array of bytes for a request's body.
class ByteBlock
{
public:
    explicit ByteBlock(std::size_t size) : m_array{::SafeArrayCreateVector(VT_UI1, 0, static_cast<ULONG>(size))}
    {
        if (m_array == nullptr) throw std::bad_alloc{};
    }
    ~ByteBlock() { ::SafeArrayDestroy(m_array); }
    ByteBlock(const ByteBlock&) = delete;
    ByteBlock& operator=(const ByteBlock&) = delete;

    [[nodiscard]] SAFEARRAY* Array() { return m_array; }
    [[nodiscard]] char* Data() { return static_cast<char*>(m_array->pvData); }

private:
    SAFEARRAY* m_array;
};

} // namespace bench
