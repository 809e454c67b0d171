#include "addin/TraceLogObject.h"

#include "platform/Procedure.h"
#include "platform/Variant.h"

namespace corvane
{

STDMETHODIMP TraceLogObject::WriteError(LONG Number, BSTR Description, BSTR Source) noexcept
{
    return Serve([&] {
        Ignoring([&] {
            m_log.WriteError(
                {static_cast<std::int32_t>(Number), std::wstring{ViewOf(Source)}, std::wstring{ViewOf(Description)}});
        });
    });
}

STDMETHODIMP TraceLogObject::WriteEventStart(BSTR Procedure) noexcept
{
    return Serve([&] { m_log.WriteEventStart(ViewOf(Procedure)); });
}

STDMETHODIMP TraceLogObject::WriteEventEnd(BSTR Procedure) noexcept
{
    return Serve([&] { m_log.WriteEventEnd(ViewOf(Procedure)); });
}

STDMETHODIMP TraceLogObject::GetTabs(BSTR* Tabs) noexcept
{
    return Serve([&] {
        HRESULT result = E_OUTOFMEMORY;
        Ignoring([&] { result = HandOut(m_log.GetTabs(), Tabs); });
        return result;
    });
}

STDMETHODIMP TraceLogObject::WriteVariable(BSTR Name, VARIANT Value) noexcept
{
    return Serve([&] {
        if (!m_log.IsEnabled()) return S_OK;
        const auto failure = Catch([&] { m_log.WriteVariable(ViewOf(Name), Variant::TextOf(Value)); });
        return failure ? DISP_E_TYPEMISMATCH : S_OK;
    });
}

STDMETHODIMP TraceLogObject::WriteLine(BSTR Text, LONG ExtraIndent) noexcept
{
    return Serve([&] { m_log.WriteLine(ViewOf(Text), static_cast<std::int32_t>(ExtraIndent)); });
}

STDMETHODIMP TraceLogObject::get_bTimeStamp(VARIANT_BOOL* TimeStamp) noexcept
{
    return Serve([&] { return HandOutValue(m_log.bTimeStamp() ? VARIANT_TRUE : VARIANT_FALSE, TimeStamp); });
}

} // namespace corvane
