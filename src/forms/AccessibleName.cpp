#include "forms/AccessibleName.h"

#include "platform/Owners.h"

#include <oleacc.h>

namespace corvane
{
namespace
{

// The service that annotates windows, its interface, and the property that is the name.
constexpr GUID kServiceClass{0xb5f8350b, 0x0548, 0x48b1, {0xa6, 0xee, 0x88, 0xbd, 0x00, 0xb4, 0xa5, 0xe7}};
constexpr GUID kServiceInterface{0x6e26e776, 0x04f0, 0x495d, {0x80, 0xe4, 0x33, 0x30, 0x35, 0x2e, 0x31, 0x69}};
constexpr GUID kNameProperty{0x608d3df8, 0x8128, 0x4aa7, {0xa4, 0x28, 0xf5, 0x5e, 0x49, 0x26, 0x72, 0x91}};

constexpr auto kClientObject = static_cast<DWORD>(OBJID_CLIENT);

} // namespace

void NameForReaders(HWND control, const std::wstring& name) noexcept
{
    ComPtr<IAccPropServices> service;
    void** const place = reinterpret_cast<void**>(service.GetAddressOf());
    if (FAILED(::CoCreateInstance(kServiceClass, nullptr, CLSCTX_INPROC_SERVER, kServiceInterface, place))) return;
    if (name.empty())
        service->ClearHwndProps(control, kClientObject, CHILDID_SELF, &kNameProperty, 1);
    else
        service->SetHwndPropStr(control, kClientObject, CHILDID_SELF, kNameProperty, name.c_str());
}

} // namespace corvane
