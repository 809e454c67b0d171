#include "addin/CRbnBtnInfo.h"

#include "platform/Procedure.h"

namespace corvane
{

HRESULT CRbnBtnInfo::Put(std::wstring& text, BSTR value) noexcept
{
    return Catch([&] { text = ViewOf(value); }) ? E_OUTOFMEMORY : S_OK;
}

STDMETHODIMP CRbnBtnInfo::Clear() noexcept
{
    m_button.Clear();
    return S_OK;
}

} // namespace corvane
