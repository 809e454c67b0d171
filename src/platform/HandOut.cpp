#include "platform/HandOut.h"

namespace corvane
{

HRESULT HandOut(std::wstring_view text, BSTR* into) noexcept
{
    if (into == nullptr) return E_POINTER;
    *into = ::SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
    return *into == nullptr ? E_OUTOFMEMORY : S_OK;
}

} // namespace corvane
