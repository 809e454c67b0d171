#include "platform/Variant.h"

#include "platform/HResult.h"

namespace corvane
{

Variant::Variant(std::int32_t number) noexcept : Variant{}
{
    m_value.vt = VT_I4;
    m_value.lVal = number;
}

Variant::Variant(long number) noexcept : Variant{static_cast<std::int32_t>(number)} {}

Variant::Variant(double number) noexcept : Variant{}
{
    m_value.vt = VT_R8;
    m_value.dblVal = number;
}

Variant::Variant(bool value) noexcept : Variant{}
{
    m_value.vt = VT_BOOL;
    m_value.boolVal = value ? VARIANT_TRUE : VARIANT_FALSE;
}

Variant::Variant(std::wstring_view text) : Variant{}
{
    m_value.bstrVal = Bstr{text}.Detach();
    m_value.vt = VT_BSTR;
}

Variant::Variant(IDispatch* object) noexcept : Variant{}
{
    m_value.vt = VT_DISPATCH;
    m_value.pdispVal = object;
    if (object != nullptr) object->AddRef();
}

Variant Variant::Missing() noexcept
{
    Variant missing;
    missing.m_value.vt = VT_ERROR;
    missing.m_value.scode = DISP_E_PARAMNOTFOUND;
    return missing;
}

Variant Variant::OfDate(DATE date) noexcept
{
    Variant value;
    value.m_value.vt = VT_DATE;
    value.m_value.date = date;
    return value;
}

bool Variant::IsMissing() const noexcept
{
    return m_value.vt == VT_EMPTY || (m_value.vt == VT_ERROR && m_value.scode == DISP_E_PARAMNOTFOUND);
}

Variant Variant::As(VARTYPE type) const
{
    Variant other;
    Check(::VariantChangeTypeEx(other.Put(), const_cast<VARIANT*>(&m_value), LOCALE_INVARIANT, VARIANT_ALPHABOOL, type),
          L"Variant.As");
    return other;
}

std::wstring Variant::TextOf(const VARIANT& value)
{
    if (value.vt == VT_EMPTY || value.vt == VT_NULL) return {};
    if (value.vt == VT_BSTR) return std::wstring{ViewOf(value.bstrVal)};
    Variant text;
    Check(::VariantChangeTypeEx(text.Put(), const_cast<VARIANT*>(&value), LOCALE_USER_DEFAULT, VARIANT_ALPHABOOL,
                                VT_BSTR),
          L"Variant.Text");
    return std::wstring{ViewOf(text.m_value.bstrVal)};
}

Variant Variant::Of(const VARIANT& value)
{
    Variant copy;
    Check(::VariantCopyInd(copy.Put(), const_cast<VARIANT*>(&value)), L"Variant.Copy");
    return copy;
}

ComPtr<IDispatch> Variant::Object() const
{
    ComPtr<IDispatch> object;
    const Variant plain = Copy();
    if ((plain.m_value.vt == VT_DISPATCH || plain.m_value.vt == VT_UNKNOWN) && plain.m_value.punkVal != nullptr)
        plain.m_value.punkVal->QueryInterface(IID_PPV_ARGS(object.GetAddressOf()));
    return object;
}

} // namespace corvane
