// Receives the events of a host object through its connection point.
#pragma once

#include "platform/Owners.h"

#include <ocidl.h>

#include <functional>

namespace corvane
{

// What an event hands over: its member id and its arguments, last to first, as Automation passes them.
using EventHandler = std::function<void(DISPID member, const DISPPARAMS& arguments)>;

// Holds one advised connection; the events end when it is destroyed. The handler must not throw.
class EventSubscription
{
public:
    EventSubscription() = default;
    // Connects handler to the source's events of the given event interface; throws Error when the source has none.
    EventSubscription(IUnknown* source, REFIID events, EventHandler handler);
    EventSubscription(EventSubscription&& other) noexcept = default;
    EventSubscription& operator=(EventSubscription other) noexcept;
    ~EventSubscription();

private:
    ComPtr<IConnectionPoint> m_point;
    DWORD m_cookie = 0;
};

} // namespace corvane
