#include "platform/Owners.h"

#include <iterator>
#include <new>

namespace corvane
{

Bstr::Bstr(std::wstring_view text) : m_text{::SysAllocStringLen(text.data(), static_cast<UINT>(text.size()))}
{
    if (m_text == nullptr) throw std::bad_alloc{};
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
