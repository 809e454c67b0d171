// A host application for tests: late-bound texts, events, and a count of who holds it.
#pragma once

#include <windows.h>

#include <oleauto.h>

#include <map>
#include <ocidl.h>
#include <string>

// An object whose members are texts, found by name; it lives on the stack and counts its references.
class FakeObject : public IDispatch
{
public:
    explicit FakeObject(std::map<std::wstring, std::wstring> texts) : m_texts{std::move(texts)} {}
    virtual ~FakeObject() = default;

    [[nodiscard]] ULONG References() const { return m_references; }

    STDMETHODIMP QueryInterface(REFIID id, void** object) override
    {
        *object = id == IID_IUnknown || id == IID_IDispatch ? static_cast<IDispatch*>(this) : Other(id);
        if (*object == nullptr) return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return ++m_references; }
    STDMETHODIMP_(ULONG) Release() override { return --m_references; }
    STDMETHODIMP GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
    STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID, DISPID* ids) override
    {
        m_asked = names[0];
        *ids = 1;
        return m_texts.contains(m_asked) ? S_OK : DISP_E_UNKNOWNNAME;
    }
    STDMETHODIMP Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT* result, EXCEPINFO*, UINT*) override
    {
        result->vt = VT_BSTR;
        result->bstrVal = ::SysAllocString(m_texts[m_asked].c_str());
        return S_OK;
    }

protected:
    virtual void* Other(REFIID) { return nullptr; }

private:
    std::map<std::wstring, std::wstring> m_texts;
    std::wstring m_asked;
    ULONG m_references = 0;
};

// PowerPoint as far as a connection needs it. It is its own connection point.
class FakePowerPoint final : public FakeObject, public IConnectionPointContainer, public IConnectionPoint
{
public:
    explicit FakePowerPoint(const wchar_t* version)
        : FakeObject{{{L"Name", L"Microsoft PowerPoint"}, {L"Version", version}, {L"Build", L"1"}}}
    {}

    [[nodiscard]] bool HasListener() const { return m_sink != nullptr; }
    // Raises WindowActivate without a presentation, or any other event.
    HRESULT Raise(DISPID event, IDispatch* window) const
    {
        VARIANTARG arguments[2] = {};
        arguments[0].vt = VT_DISPATCH;
        arguments[0].pdispVal = window;
        arguments[1].vt = VT_DISPATCH;
        DISPPARAMS parameters{arguments, nullptr, 2, 0};
        return m_sink->Invoke(event, IID_NULL, 0, DISPATCH_METHOD, &parameters, nullptr, nullptr, nullptr);
    }

    STDMETHODIMP QueryInterface(REFIID id, void** object) override { return FakeObject::QueryInterface(id, object); }
    STDMETHODIMP_(ULONG) AddRef() override { return FakeObject::AddRef(); }
    STDMETHODIMP_(ULONG) Release() override { return FakeObject::Release(); }
    STDMETHODIMP EnumConnectionPoints(IEnumConnectionPoints**) override { return E_NOTIMPL; }
    STDMETHODIMP FindConnectionPoint(REFIID, IConnectionPoint** point) override
    {
        *point = this;
        AddRef();
        return S_OK;
    }
    STDMETHODIMP GetConnectionInterface(IID*) override { return E_NOTIMPL; }
    STDMETHODIMP GetConnectionPointContainer(IConnectionPointContainer**) override { return E_NOTIMPL; }
    STDMETHODIMP Advise(IUnknown* sink, DWORD* cookie) override
    {
        // PowerPoint's EApplication: the sink must answer for it.
        constexpr IID kEvents = {0x914934C2, 0x5A91, 0x11CF, {0x87, 0x00, 0x00, 0xAA, 0x00, 0x60, 0x26, 0x3B}};
        *cookie = 1;
        return sink->QueryInterface(kEvents, reinterpret_cast<void**>(&m_sink));
    }
    STDMETHODIMP Unadvise(DWORD) override
    {
        m_sink->Release();
        m_sink = nullptr;
        return S_OK;
    }
    STDMETHODIMP EnumConnections(IEnumConnections**) override { return E_NOTIMPL; }

protected:
    void* Other(REFIID id) override
    {
        constexpr IID kApplication = {0x91493442, 0x5A91, 0x11CF, {0x87, 0x00, 0x00, 0xAA, 0x00, 0x60, 0x26, 0x3B}};
        if (id == kApplication) return static_cast<IDispatch*>(this);
        return id == IID_IConnectionPointContainer ? static_cast<IConnectionPointContainer*>(this) : nullptr;
    }

private:
    IDispatch* m_sink = nullptr;
};
