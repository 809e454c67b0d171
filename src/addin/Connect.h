// The class that the host creates: its connection to the add-in.
#pragma once

#include "addin.h"
#include "platform/ComObject.h"
#include "platform/EventSubscription.h"
#include "platform/LateBound.h"

#include <optional>

namespace corvane
{

// Makes and releases the process-wide objects with the connection, hands the ribbon to the host and leads its callbacks
// and events on. No error leaves it: each is reported and the host sees success.
class Connect final : public PublicObject<Connect, Dispatched<_Connect>, Dispatched<IDTExtensibility2>,
                                          Dispatched<IRibbonExtensibility>>
{
public:
    // From now on errors are told, also those of callbacks that come before a connection.
    Connect() noexcept;

    // IDTExtensibility2
    STDMETHODIMP OnConnection(IDispatch* Application, LONG ConnectMode, IDispatch* AddInInst,
                              SAFEARRAY** custom) noexcept override;
    STDMETHODIMP OnDisconnection(LONG RemoveMode, SAFEARRAY** custom) noexcept override;
    STDMETHODIMP OnAddInsUpdate(SAFEARRAY** /*custom*/) noexcept override { return Nothing(); }
    STDMETHODIMP OnStartupComplete(SAFEARRAY** /*custom*/) noexcept override { return Nothing(); }
    STDMETHODIMP OnBeginShutdown(SAFEARRAY** /*custom*/) noexcept override { return Nothing(); }

    // IRibbonExtensibility
    STDMETHODIMP GetCustomUI(BSTR RibbonID, BSTR* RibbonXml) noexcept override;

    // Ribbon callbacks. The four tips and states are there for any XML that names them; ours names none.
    STDMETHODIMP RibbonHandler(IDispatch* control) noexcept override;
    STDMETHODIMP GetEnabled(IDispatch* control, VARIANT_BOOL* enabled) noexcept override;
    STDMETHODIMP GetLabel(IDispatch* /*control*/, BSTR* label) noexcept override { return NoText(label); }
    STDMETHODIMP GetScreentip(IDispatch* /*control*/, BSTR* screentip) noexcept override { return NoText(screentip); }
    STDMETHODIMP GetSupertip(IDispatch* /*control*/, BSTR* supertip) noexcept override { return NoText(supertip); }
    STDMETHODIMP onLoad(IDispatch* ribbon, VARIANT* result) noexcept override;

private:
    void Connected(IDispatch* application, LONG connectMode, IDispatch* addInInstance) noexcept;
    void Disconnected() noexcept;
    void ConnectToHost(const LateBound& application, LONG connectMode, const LateBound& addInInstance);
    void StartUp(const LateBound& application);
    [[nodiscard]] HRESULT Nothing() const noexcept; // answers what the add-in takes no part in
    [[nodiscard]] HRESULT NoText(BSTR* text) const noexcept;
    void Offer(const LateBound& addInInstance);
    void OnApplicationEvent(DISPID member, const DISPPARAMS& arguments) noexcept;
    void WindowActivate(const LateBound& presentation, const LateBound& window) const;
    [[nodiscard]] int HostVersion() const;
    [[nodiscard]] LateBound MenuBar() const;

    std::optional<ThreadClaim> m_claim; // from the connection to the disconnection
    LateBound m_oPowerPointApp;
    LateBound m_oAddIn; // what the host knows of the add-in
    EventSubscription m_events;
};

} // namespace corvane
