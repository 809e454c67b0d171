#include "automation/EventSource.h"

#include <olectl.h>

#include <algorithm>
#include <vector>

namespace host
{

void EventSource::Fire(DISPID event, std::initializer_list<IDispatch*> objects)
{
    const std::vector<Variant> held(objects.begin(), objects.end());
    std::vector<VARIANT> reversed(held.size());
    std::transform(held.rbegin(), held.rend(), reversed.begin(), [](const Variant& one) { return one.Get(); });
    Call(event, reversed);
}

bool EventSource::FireCancellable(DISPID event, IDispatch& object)
{
    VARIANT_BOOL cancel = VARIANT_FALSE;
    const Variant held{&object};
    VARIANT byReference{};
    byReference.vt = VT_BOOL | VT_BYREF;
    byReference.pboolVal = &cancel;
    VARIANT reversed[] = {byReference, held.Get()};
    Call(event, reversed);
    return cancel != VARIANT_FALSE;
}

void EventSource::Call(DISPID event, std::span<VARIANT> reversed)
{
    const auto sinks = m_sinks; // a sink may unadvise itself or others while it is called
    for (const auto& [cookie, sink] : sinks) {
        if (!m_sinks.contains(cookie)) continue;
        DISPPARAMS parameters{reversed.data(), nullptr, static_cast<UINT>(reversed.size()), 0};
        sink->Invoke(event, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &parameters, nullptr, nullptr, nullptr);
    }
}

STDMETHODIMP EventSource::QueryInterface(REFIID id, void** object)
{
    if (object == nullptr) return E_POINTER;
    if (id != IID_IConnectionPoint) return m_owner.QueryInterface(id, object);
    *object = static_cast<IConnectionPoint*>(this);
    AddRef();
    return S_OK;
}

STDMETHODIMP EventSource::FindConnectionPoint(REFIID id, IConnectionPoint** point)
{
    if (point == nullptr) return E_POINTER;
    *point = nullptr;
    if (id != m_events) return CONNECT_E_NOCONNECTION;
    *point = this;
    AddRef();
    return S_OK;
}

STDMETHODIMP EventSource::Advise(IUnknown* sink, DWORD* cookie)
{
    if (sink == nullptr || cookie == nullptr) return E_POINTER;
    ComPtr<IDispatch> events;
    if (FAILED(sink->QueryInterface(m_events, reinterpret_cast<void**>(events.GetAddressOf()))) &&
        FAILED(sink->QueryInterface(IID_IDispatch, reinterpret_cast<void**>(events.GetAddressOf()))))
        return CONNECT_E_CANNOTCONNECT;
    *cookie = ++m_lastCookie;
    m_sinks.emplace(*cookie, events);
    return S_OK;
}

STDMETHODIMP EventSource::Unadvise(DWORD cookie) { return m_sinks.erase(cookie) != 0 ? S_OK : CONNECT_E_NOCONNECTION; }

} // namespace host
