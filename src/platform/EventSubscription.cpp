#include "platform/EventSubscription.h"

#include "platform/ComObject.h"
#include "platform/HResult.h"

namespace corvane
{
namespace
{

// The sink: answers for the event interface it was made for and hands every Invoke to its handler.
class EventSink final : public ComObject<EventSink, IDispatch>
{
public:
    EventSink(REFIID events, EventHandler handler) : m_events{events}, m_handler{std::move(handler)} {}

    STDMETHODIMP QueryInterface(REFIID id, void** object) noexcept override
    {
        return ComObject::QueryInterface(id == m_events ? __uuidof(IDispatch) : id, object);
    }
    STDMETHODIMP GetTypeInfoCount(UINT* count) noexcept override { return HandOutValue(0U, count); }
    STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) noexcept override { return E_NOTIMPL; }
    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) noexcept override { return E_NOTIMPL; }
    STDMETHODIMP Invoke(DISPID member, REFIID, LCID, WORD, DISPPARAMS* arguments, VARIANT*, EXCEPINFO*,
                        UINT*) noexcept override
    {
        if (arguments == nullptr) return E_POINTER;
        return m_thread.Serve([&] { m_handler(member, *arguments); });
    }

private:
    IID m_events;
    EventHandler m_handler;
    OwnThread m_thread;
};

} // namespace

EventSubscription::EventSubscription(IUnknown* source, REFIID events, EventHandler handler)
{
    constexpr const wchar_t* kSource = L"EventSubscription.EventSubscription";
    ComPtr<IConnectionPointContainer> container;
    Check(source->QueryInterface(IID_PPV_ARGS(container.GetAddressOf())), kSource);
    Check(container->FindConnectionPoint(events, m_point.GetAddressOf()), kSource);
    const auto sink = MakeObject<EventSink>(events, std::move(handler));
    Check(m_point->Advise(sink.Get(), &m_cookie), kSource);
}

EventSubscription& EventSubscription::operator=(EventSubscription other) noexcept
{
    std::swap(m_point, other.m_point);
    std::swap(m_cookie, other.m_cookie);
    return *this;
}

EventSubscription::~EventSubscription()
{
    if (m_point != nullptr) m_point->Unadvise(m_cookie);
}

} // namespace corvane
