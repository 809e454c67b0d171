#include "automation/EventSource.h"

#include <algorithm>

#include <olectl.h>

namespace host
{

void EventSource::Fire(DISPID event, std::span<VARIANT> arguments)
{
    std::vector<VARIANT> reversed(arguments.rbegin(), arguments.rend()); // borrowed: the caller keeps the references
    const auto sinks = m_sinks; // a sink may unadvise itself or others while it is called
    for (const auto& [cookie, sink] : sinks) {
        if (!m_sinks.contains(cookie)) continue;
        DISPPARAMS parameters{reversed.data(), nullptr, static_cast<UINT>(reversed.size()), 0};
        sink->Invoke(event, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &parameters, nullptr, nullptr, nullptr);
    }
}

STDMETHODIMP EventSource::QueryInterface(REFIID id, void** object)
{
    if (!object) return E_POINTER;
    if (id != IID_IConnectionPoint) return m_owner.QueryInterface(id, object);
    *object = static_cast<IConnectionPoint*>(this);
    AddRef();
    return S_OK;
}

STDMETHODIMP EventSource::EnumConnectionPoints(IEnumConnectionPoints** points)
{
    if (points) *points = nullptr;
    return E_NOTIMPL;
}

STDMETHODIMP EventSource::FindConnectionPoint(REFIID id, IConnectionPoint** point)
{
    if (!point) return E_POINTER;
    *point = nullptr;
    if (id != m_events) return CONNECT_E_NOCONNECTION;
    *point = this;
    AddRef();
    return S_OK;
}

STDMETHODIMP EventSource::GetConnectionInterface(IID* id)
{
    if (!id) return E_POINTER;
    *id = m_events;
    return S_OK;
}

STDMETHODIMP EventSource::GetConnectionPointContainer(IConnectionPointContainer** container)
{
    if (!container) return E_POINTER;
    *container = this;
    AddRef();
    return S_OK;
}

STDMETHODIMP EventSource::Advise(IUnknown* sink, DWORD* cookie)
{
    if (!sink || !cookie) return E_POINTER;
    ComPtr<IDispatch> events;
    if (FAILED(sink->QueryInterface(m_events, reinterpret_cast<void**>(events.GetAddressOf()))) &&
        FAILED(sink->QueryInterface(IID_IDispatch, reinterpret_cast<void**>(events.GetAddressOf()))))
        return CONNECT_E_CANNOTCONNECT;
    *cookie = ++m_lastCookie;
    m_sinks.emplace(*cookie, events);
    return S_OK;
}

STDMETHODIMP EventSource::Unadvise(DWORD cookie) { return m_sinks.erase(cookie) ? S_OK : CONNECT_E_NOCONNECTION; }

STDMETHODIMP EventSource::EnumConnections(IEnumConnections** connections)
{
    if (connections) *connections = nullptr;
    return E_NOTIMPL;
}

} // namespace host
