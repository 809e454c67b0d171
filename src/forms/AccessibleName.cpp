#include "forms/AccessibleName.h"

#include "platform/Owners.h"

#include <oleacc.h>

namespace corvane
{
namespace
{

constexpr auto kClientObject = static_cast<DWORD>(OBJID_CLIENT);

} // namespace

void NameForReaders(HWND control, const std::wstring& name) noexcept
{
    ComPtr<IAccPropServices> service;
    void** const place = reinterpret_cast<void**>(service.GetAddressOf());
    if (FAILED(::CoCreateInstance(CLSID_AccPropServices, nullptr, CLSCTX_INPROC_SERVER, IID_IAccPropServices, place)))
        return;
    if (name.empty())
        service->ClearHwndProps(control, kClientObject, CHILDID_SELF, &PROPID_ACC_NAME, 1);
    else
        service->SetHwndPropStr(control, kClientObject, CHILDID_SELF, PROPID_ACC_NAME, name.c_str());
}

} // namespace corvane
