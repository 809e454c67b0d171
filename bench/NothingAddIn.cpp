// An add-in that does nothing: it can be connected and hands over an empty ribbon.
#include "automation/OfficeInterfaces.h"

namespace
{

class Nothing final : public host::IDTExtensibility2, public host::IRibbonExtensibility, public IClassFactory
{
public:
    STDMETHODIMP QueryInterface(REFIID id, void** object) override
    {
        *object = nullptr;
        if (id == IID_IClassFactory)
            *object = static_cast<IClassFactory*>(this);
        else if (id == __uuidof(host::IRibbonExtensibility))
            *object = static_cast<host::IRibbonExtensibility*>(this);
        else if (id == __uuidof(host::IDTExtensibility2) || id == IID_IUnknown)
            *object = static_cast<host::IDTExtensibility2*>(this);
        return *object == nullptr ? E_NOINTERFACE : S_OK;
    }
    // It lives as long as its library.
    STDMETHODIMP_(ULONG) AddRef() override { return 2; }
    STDMETHODIMP_(ULONG) Release() override { return 1; }

    STDMETHODIMP CreateInstance(IUnknown*, REFIID id, void** object) override { return QueryInterface(id, object); }
    STDMETHODIMP LockServer(BOOL) override { return S_OK; }

    STDMETHODIMP GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
    STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
    STDMETHODIMP Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override
    {
        return E_NOTIMPL;
    }

    STDMETHODIMP OnConnection(IDispatch*, LONG, IDispatch*, SAFEARRAY**) override { return S_OK; }
    STDMETHODIMP OnDisconnection(LONG, SAFEARRAY**) override { return S_OK; }
    STDMETHODIMP OnAddInsUpdate(SAFEARRAY**) override { return S_OK; }
    STDMETHODIMP OnStartupComplete(SAFEARRAY**) override { return S_OK; }
    STDMETHODIMP OnBeginShutdown(SAFEARRAY**) override { return S_OK; }
    STDMETHODIMP GetCustomUI(BSTR, BSTR* xml) override
    {
        *xml = ::SysAllocString(L"<customUI xmlns=\"http://schemas.microsoft.com/office/2009/07/customui\"/>");
        return S_OK;
    }
};

Nothing nothing;

} // namespace

STDAPI DllGetClassObject(REFCLSID, REFIID id, void** object) { return nothing.QueryInterface(id, object); }
