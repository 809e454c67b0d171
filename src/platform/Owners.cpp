#include "platform/Owners.h"

#include <new>

namespace corvane
{

Bstr::Bstr(std::wstring_view text) : m_text{::SysAllocStringLen(text.data(), static_cast<UINT>(text.size()))}
{
    if (m_text == nullptr) throw std::bad_alloc{};
}

std::wstring_view ViewOf(BSTR text) noexcept
{
    return text == nullptr ? std::wstring_view{} : std::wstring_view{text, ::SysStringLen(text)};
}

} // namespace corvane
