// Classes of the system replaced in this process.
#pragma once

#include <windows.h>

#include <functional>
#include <unknwn.h>

// COM for the thread of a test.
class Apartment
{
public:
    Apartment() { ::CoInitialize(nullptr); }
    ~Apartment() { ::CoUninitialize(); }
    Apartment(const Apartment&) = delete;
    Apartment& operator=(const Apartment&) = delete;
};

// Takes a class's place for as long as the object lives. Creation goes to create, or
// fails as for a class that the machine does not have when create is empty.
class OfferedClass final : public IClassFactory
{
public:
    using Create = std::function<HRESULT(REFIID, void**)>;

    explicit OfferedClass(REFCLSID classId, Create create = {}) : m_create{std::move(create)}
    {
        ::CoRegisterClassObject(classId, this, CLSCTX_INPROC_SERVER, REGCLS_MULTIPLEUSE, &m_cookie);
    }
    ~OfferedClass() { ::CoRevokeClassObject(m_cookie); }
    OfferedClass(const OfferedClass&) = delete;
    OfferedClass& operator=(const OfferedClass&) = delete;

    // How often the class was asked for.
    [[nodiscard]] int Asked() const { return m_asked; }

    STDMETHODIMP QueryInterface(REFIID id, void** object) override
    {
        *object = id == IID_IUnknown || id == IID_IClassFactory ? this : nullptr;
        return *object == nullptr ? E_NOINTERFACE : S_OK;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return 2; } // lives on the stack
    STDMETHODIMP_(ULONG) Release() override { return 1; }
    STDMETHODIMP CreateInstance(IUnknown*, REFIID id, void** object) override
    {
        ++m_asked;
        *object = nullptr;
        return m_create ? m_create(id, object) : REGDB_E_CLASSNOTREG;
    }
    STDMETHODIMP LockServer(BOOL) override { return S_OK; }

private:
    Create m_create;
    DWORD m_cookie = 0;
    int m_asked = 0;
};
