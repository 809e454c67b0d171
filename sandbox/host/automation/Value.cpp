#include "automation/Value.h"

#include <new>

#include "automation/AutomationError.h"

namespace host
{

ComText::ComText(std::wstring_view text) : m_text{::SysAllocStringLen(text.data(), static_cast<UINT>(text.size()))}
{
    if (!m_text) throw std::bad_alloc{};
}

Value::Value(std::wstring_view text) : Value{}
{
    m_variant.bstrVal = ComText{text}.Detach();
    m_variant.vt = VT_BSTR;
}

Value::Value(long number) noexcept : Value{}
{
    m_variant.vt = VT_I4;
    m_variant.lVal = number;
}

Value::Value(double number) noexcept : Value{}
{
    m_variant.vt = VT_R8;
    m_variant.dblVal = number;
}

Value::Value(IDispatch* object) noexcept : Value{}
{
    m_variant.vt = VT_DISPATCH;
    m_variant.pdispVal = object;
    if (object) object->AddRef();
}

Value Value::OfBoolean(bool value) noexcept
{
    Value result;
    result.m_variant.vt = VT_BOOL;
    result.m_variant.boolVal = value ? VARIANT_TRUE : VARIANT_FALSE;
    return result;
}

Value Value::OfDate(DATE date) noexcept
{
    Value result;
    result.m_variant.vt = VT_DATE;
    result.m_variant.date = date;
    return result;
}

Value::Value(const VARIANT& source) : Value{}
{
    ThrowIfFailed(::VariantCopyInd(&m_variant, const_cast<VARIANT*>(&source)), L"The value could not be copied.");
}

VARIANT Value::Detach() noexcept
{
    VARIANT taken = m_variant;
    ::VariantInit(&m_variant);
    return taken;
}

bool Value::IsMissing() const noexcept
{
    return m_variant.vt == VT_EMPTY || (m_variant.vt == VT_ERROR && m_variant.scode == DISP_E_PARAMNOTFOUND);
}

Value Value::As(VARTYPE type) const
{
    Value result;
    const HRESULT changed = ::VariantChangeTypeEx(&result.m_variant, const_cast<VARIANT*>(&m_variant), LOCALE_INVARIANT,
                                                  VARIANT_ALPHABOOL, type);
    ThrowIfFailed(changed, L"Type mismatch.");
    return result;
}

std::wstring Value::Text() const
{
    const Value text = As(VT_BSTR);
    const BSTR raw = text.m_variant.bstrVal;
    return {raw ? raw : L"", ::SysStringLen(raw)};
}

long Value::Number() const { return As(VT_I4).m_variant.lVal; }
double Value::Float() const { return As(VT_R8).m_variant.dblVal; }
bool Value::Boolean() const { return As(VT_BOOL).m_variant.boolVal != VARIANT_FALSE; }

IDispatch* Value::Object() const
{
    if (m_variant.vt == VT_EMPTY) return nullptr;
    if (m_variant.vt == VT_DISPATCH) return m_variant.pdispVal;
    throw AutomationError{DISP_E_TYPEMISMATCH, L"An object is expected."};
}

} // namespace host
