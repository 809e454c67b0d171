#include "addin/TraceLogObject.h"

#include "platform/HandOut.h"
#include "platform/Procedure.h"
#include "platform/Variant.h"

namespace corvane
{

STDMETHODIMP TraceLogObject::WriteError(LONG Number, BSTR Description, BSTR Source) noexcept
{
    Ignoring([&] {
        m_log.WriteError(
            {static_cast<std::int32_t>(Number), std::wstring{ViewOf(Source)}, std::wstring{ViewOf(Description)}});
    });
    return S_OK;
}

STDMETHODIMP TraceLogObject::WriteEventStart(BSTR Procedure) noexcept
{
    m_log.WriteEventStart(ViewOf(Procedure));
    return S_OK;
}

STDMETHODIMP TraceLogObject::WriteEventEnd(BSTR Procedure) noexcept
{
    m_log.WriteEventEnd(ViewOf(Procedure));
    return S_OK;
}

STDMETHODIMP TraceLogObject::GetTabs(BSTR* Tabs) noexcept
{
    HRESULT result = E_OUTOFMEMORY;
    Ignoring([&] { result = HandOut(m_log.GetTabs(), Tabs); });
    return result;
}

STDMETHODIMP TraceLogObject::WriteVariable(BSTR Name, VARIANT Value) noexcept
{
    if (!m_log.IsEnabled()) return S_OK;
    const auto failure = Catch([&] { m_log.WriteVariable(ViewOf(Name), Variant::TextOf(Value)); });
    return failure ? DISP_E_TYPEMISMATCH : S_OK;
}

STDMETHODIMP TraceLogObject::WriteLine(BSTR Text, LONG ExtraIndent) noexcept
{
    m_log.WriteLine(ViewOf(Text), static_cast<std::int32_t>(ExtraIndent));
    return S_OK;
}

STDMETHODIMP TraceLogObject::get_bTimeStamp(VARIANT_BOOL* TimeStamp) noexcept
{
    if (TimeStamp == nullptr) return E_POINTER;
    *TimeStamp = m_log.bTimeStamp() ? VARIANT_TRUE : VARIANT_FALSE;
    return S_OK;
}

} // namespace corvane
