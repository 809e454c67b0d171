// The events of host objects.
#pragma once

#include "automation/AutomationObject.h"

#include <ocidl.h>

#include <initializer_list>
#include <map>
#include <span>

namespace host
{

// The outgoing side of one object: keeps the sinks that were advised of one event interface and fires to all of them.
// It is a part of its object and shares the object's reference count, so it lives as long.
class EventSource final : public IConnectionPointContainer, public IConnectionPoint
{
public:
    EventSource(IUnknown& owner, REFIID events) : m_owner{owner}, m_events{events} {}

    // Calls every sink with these objects, in the order in which they are written.
    void Fire(DISPID event, std::initializer_list<IDispatch*> objects);

    // Calls every sink with the object and, by reference, whether to cancel. True when they leave it so.
    bool FireCancellable(DISPID event, IDispatch& object);

    [[nodiscard]] bool HasSinks() const { return !m_sinks.empty(); }

    STDMETHODIMP QueryInterface(REFIID id, void** object) override;
    STDMETHODIMP_(ULONG) AddRef() override { return m_owner.AddRef(); }
    STDMETHODIMP_(ULONG) Release() override { return m_owner.Release(); }

    STDMETHODIMP EnumConnectionPoints(IEnumConnectionPoints**) override { return E_NOTIMPL; }
    STDMETHODIMP FindConnectionPoint(REFIID id, IConnectionPoint** point) override;

    STDMETHODIMP GetConnectionInterface(IID*) override { return E_NOTIMPL; }
    STDMETHODIMP GetConnectionPointContainer(IConnectionPointContainer**) override { return E_NOTIMPL; }
    STDMETHODIMP Advise(IUnknown* sink, DWORD* cookie) override;
    STDMETHODIMP Unadvise(DWORD cookie) override;
    STDMETHODIMP EnumConnections(IEnumConnections**) override { return E_NOTIMPL; }

private:
    void Call(DISPID event, std::span<VARIANT> reversed);

    IUnknown& m_owner;
    IID m_events;
    std::map<DWORD, ComPtr<IDispatch>> m_sinks;
    DWORD m_lastCookie = 0;
};

} // namespace host
