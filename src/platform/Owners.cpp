#include "platform/Owners.h"

#include <iterator>
#include <new>

namespace corvane
{

Bstr::Bstr(std::wstring_view text) : Unique{::SysAllocStringLen(text.data(), static_cast<UINT>(text.size()))}
{
    if (Get() == nullptr) throw std::bad_alloc{};
}

HRESULT HandOut(std::wstring_view text, BSTR* into) noexcept
{
    if (into == nullptr) return E_POINTER;
    *into = ::SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
    return *into == nullptr ? E_OUTOFMEMORY : S_OK;
}

std::wstring GuidText(REFGUID id)
{
    wchar_t text[39] = L"";
    ::StringFromGUID2(id, text, static_cast<int>(std::size(text)));
    return text;
}

std::wstring_view ViewOf(BSTR text) noexcept
{
    return text == nullptr ? std::wstring_view{} : std::wstring_view{text, ::SysStringLen(text)};
}

} // namespace corvane
