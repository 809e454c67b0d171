// Texts that leave COM methods.
#pragma once

#include <windows.h>

#include <oleauto.h>

#include <string_view>

namespace corvane
{

// Hands a text out of a COM method, to be freed by the caller; the method's result.
[[nodiscard]] HRESULT HandOut(std::wstring_view text, BSTR* into) noexcept;

} // namespace corvane
