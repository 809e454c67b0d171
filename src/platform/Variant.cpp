#include "platform/Variant.h"

#include "platform/HResult.h"

namespace corvane
{

Variant::Variant(std::int32_t number) noexcept : Variant{}
{
    m_value.vt = VT_I4;
    m_value.lVal = number;
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

std::wstring Variant::TextOf(const VARIANT& value)
{
    if (value.vt == VT_EMPTY || value.vt == VT_NULL) return {};
    Variant text;
    Check(::VariantChangeTypeEx(text.Put(), const_cast<VARIANT*>(&value), LOCALE_USER_DEFAULT, VARIANT_ALPHABOOL,
                                VT_BSTR),
          L"Variant.Text");
    return std::wstring{ViewOf(text.m_value.bstrVal)};
}

Variant Variant::Copy() const
{
    Variant copy;
    Check(::VariantCopyInd(copy.Put(), const_cast<VARIANT*>(&m_value)), L"Variant.Copy");
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
