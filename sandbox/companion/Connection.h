// What the host creates and connects.
#pragma once

#include <memory>

#include <windows.h>

#include <oaidl.h>

#include "companion/Performance.h"
#include "platform/ComObject.h"

namespace corvane::companion
{

// Office's interface of add-ins, in the order of its virtual table.
struct IDTExtensibility2 : IDispatch
{
    virtual HRESULT STDMETHODCALLTYPE OnConnection(IDispatch* application, LONG mode, IDispatch* addIn,
                                                   SAFEARRAY** custom) = 0;
    virtual HRESULT STDMETHODCALLTYPE OnDisconnection(LONG mode, SAFEARRAY** custom) = 0;
    virtual HRESULT STDMETHODCALLTYPE OnAddInsUpdate(SAFEARRAY** custom) = 0;
    virtual HRESULT STDMETHODCALLTYPE OnStartupComplete(SAFEARRAY** custom) = 0;
    virtual HRESULT STDMETHODCALLTYPE OnBeginShutdown(SAFEARRAY** custom) = 0;
};

// Plays while it is connected, where the host was started to play; in any other host it does nothing.
class Connection final : public ComObject<Connection, IDTExtensibility2>
{
public:
    STDMETHODIMP OnConnection(IDispatch* application, LONG mode, IDispatch* addIn,
                              SAFEARRAY** custom) noexcept override;
    STDMETHODIMP OnDisconnection(LONG mode, SAFEARRAY** custom) noexcept override;
    STDMETHODIMP OnAddInsUpdate(SAFEARRAY**) noexcept override { return S_OK; }
    STDMETHODIMP OnStartupComplete(SAFEARRAY** custom) noexcept override;
    STDMETHODIMP OnBeginShutdown(SAFEARRAY**) noexcept override { return S_OK; }

    STDMETHODIMP GetTypeInfoCount(UINT*) noexcept override { return E_NOTIMPL; }
    STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) noexcept override { return E_NOTIMPL; }
    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) noexcept override { return E_NOTIMPL; }
    STDMETHODIMP Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) noexcept override
    {
        return E_NOTIMPL;
    }

private:
    std::unique_ptr<Performance> m_performance;
};

} // namespace corvane::companion

__CRT_UUID_DECL(corvane::companion::IDTExtensibility2, 0xB65AD801, 0xABAF, 0x11D0, 0xBB, 0x8B, 0x00, 0xA0, 0xC9, 0x0F,
                0x27, 0x44)
