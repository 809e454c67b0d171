#include "platform/Variant.h"

#include "platform/HResult.h"

namespace corvane
{

Variant::Variant(std::int32_t number) noexcept : Variant{VT_I4, &VARIANT::lVal, number} {}

Variant::Variant(long number) noexcept : Variant{static_cast<std::int32_t>(number)} {}

Variant::Variant(bool value) noexcept : Variant{VT_BOOL, &VARIANT::boolVal, value ? VARIANT_TRUE : VARIANT_FALSE} {}

Variant::Variant(std::wstring_view text) : Variant{VT_BSTR, &VARIANT::bstrVal, Bstr{text}.Detach()} {}

Variant::Variant(IDispatch* object) noexcept : Variant{VT_DISPATCH, &VARIANT::pdispVal, object}
{
    if (object != nullptr) object->AddRef();
}

Variant Variant::Missing() noexcept { return {VT_ERROR, &VARIANT::scode, DISP_E_PARAMNOTFOUND}; }

Variant Variant::OfDate(DATE date) noexcept { return {VT_DATE, &VARIANT::date, date}; }

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
