// The trace log as a class for other components.
#pragma once

#include "addin.h"
#include "platform/ComObject.h"
#include "support/CTraceLog.h"

namespace corvane
{

// A trace log of its own behind the public interface.
class TraceLogObject final : public PublicObject<TraceLogObject, Dispatched<_CTraceLog>>
{
public:
    TraceLogObject() : m_log{Settings::Read()} {}

    STDMETHODIMP WriteError(LONG Number, BSTR Description, BSTR Source) noexcept override;
    STDMETHODIMP WriteEventStart(BSTR Procedure) noexcept override;
    STDMETHODIMP WriteEventEnd(BSTR Procedure) noexcept override;
    STDMETHODIMP GetTabs(BSTR* Tabs) noexcept override;
    STDMETHODIMP WriteVariable(BSTR Name, VARIANT Value) noexcept override;
    STDMETHODIMP WriteLine(BSTR Text, LONG ExtraIndent) noexcept override;
    STDMETHODIMP get_bTimeStamp(VARIANT_BOOL* TimeStamp) noexcept override;

private:
    CTraceLog m_log;
};

} // namespace corvane
