#include "addin/CSaveResult.h"

namespace corvane
{

HRESULT CSaveResult::Get(std::int32_t Target::*id, LONG* into) const noexcept
{
    return Serve([&] { return HandOutValue(LastSave().Version().target.*id, into); });
}

HRESULT CSaveResult::Get(std::wstring SavedVersion::*text, BSTR* into) const noexcept
{
    return Serve([&] { return HandOut(LastSave().Version().*text, into); });
}

STDMETHODIMP CSaveResult::get_Outcome(LONG* Value) noexcept
{
    return Serve([&] { return HandOutValue(static_cast<LONG>(LastSave().Outcome()), Value); });
}

STDMETHODIMP CSaveResult::get_ErrorNumber(LONG* Value) noexcept
{
    return Serve([&] { return HandOutValue(LastSave().ErrorNumber(), Value); });
}

STDMETHODIMP CSaveResult::get_ErrorDescription(BSTR* Value) noexcept
{
    return Serve([&] { return HandOut(LastSave().ErrorDescription(), Value); });
}

} // namespace corvane
