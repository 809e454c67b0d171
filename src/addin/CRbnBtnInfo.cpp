#include "addin/CRbnBtnInfo.h"

#include "platform/Procedure.h"

namespace corvane
{

HRESULT CRbnBtnInfo::Get(const std::wstring& text, BSTR* value) const noexcept
{
    return Serve([&] { return HandOut(text, value); });
}

HRESULT CRbnBtnInfo::Put(std::wstring& text, BSTR value) const noexcept
{
    return Serve([&] { return Catch([&] { text = ViewOf(value); }) ? E_OUTOFMEMORY : S_OK; });
}

STDMETHODIMP CRbnBtnInfo::Clear() noexcept
{
    return Serve([this] { m_button.Clear(); });
}

} // namespace corvane
