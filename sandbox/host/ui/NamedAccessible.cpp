#include "ui/NamedAccessible.h"

#include <utility>

namespace host
{

NamedAccessible::NamedAccessible(ComPtr<IAccessible> window, std::wstring name)
    : AutomationObject{L"Accessible", kAccessibleId}, m_window{std::move(window)}, m_name{std::move(name)}
{}

HRESULT NamedAccessible::get_accName(VARIANT child, BSTR* name)
{
    if (child.vt != VT_I4 || child.lVal != CHILDID_SELF) return m_window->get_accName(child, name);
    *name = ::SysAllocString(m_name.c_str());
    return *name ? S_OK : E_OUTOFMEMORY;
}

} // namespace host
