#pragma once

#include <functional>

#include <windows.h>

#include <unknwn.h>

namespace host
{

// Takes the place of a class in this process, before any that is registered, while it lives. Every creation asks the
// given function for a new reference. Throws Error when COM does not take the class.
class ClassObject final : public IClassFactory
{
public:
    using Create = std::function<HRESULT(REFIID, void**)>;

    ClassObject(REFCLSID classId, Create create);
    ClassObject(const ClassObject&) = delete;
    ClassObject& operator=(const ClassObject&) = delete;
    virtual ~ClassObject();

    // It outlives COM's use of it; the count is not kept.
    STDMETHODIMP QueryInterface(REFIID id, void** object) override;
    STDMETHODIMP_(ULONG) AddRef() override { return 2; }
    STDMETHODIMP_(ULONG) Release() override { return 1; }
    STDMETHODIMP CreateInstance(IUnknown* outer, REFIID id, void** object) override;
    STDMETHODIMP LockServer(BOOL) override { return S_OK; }

private:
    Create m_create;
    DWORD m_cookie = 0;
};

} // namespace host
