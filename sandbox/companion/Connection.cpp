#include "companion/Connection.h"

#include "platform/Procedure.h"

namespace corvane::companion
{
namespace
{
constexpr LONG kStartUp = 1; // ext_cm_Startup: OnStartupComplete follows
}

STDMETHODIMP Connection::OnConnection(IDispatch* application, LONG mode, IDispatch* /*addIn*/,
                                      SAFEARRAY** /*custom*/) noexcept
{
    AtHostBoundary(L"Connection.OnConnection", [&] {
        auto errand = ReadErrand();
        if (!errand) return;
        m_performance = std::make_unique<Performance>(LateBound{ComPtr<IDispatch>{application}}, std::move(*errand));
        if (mode != kStartUp) m_performance->AddInsLoaded();
    });
    return S_OK;
}

STDMETHODIMP Connection::OnStartupComplete(SAFEARRAY** /*custom*/) noexcept
{
    AtHostBoundary(L"Connection.OnStartupComplete", [&] {
        if (m_performance) m_performance->AddInsLoaded();
    });
    return S_OK;
}

STDMETHODIMP Connection::OnDisconnection(LONG /*mode*/, SAFEARRAY** /*custom*/) noexcept
{
    AtHostBoundary(L"Connection.OnDisconnection", [&] { m_performance.reset(); });
    return S_OK;
}

} // namespace corvane::companion
