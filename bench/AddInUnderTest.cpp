#include "AddInUnderTest.h"

#include "BareRequest.h"
#include "objects/Application.h"
#include "objects/ComAddIn.h"
#include "objects/RibbonObjects.h"

#include <addin.h>

namespace bench
{
namespace
{

constexpr LONG kStartUp = 1;

host::ComPtr<IClassFactory> ClassOf(const std::wstring& library)
{
    const HMODULE module = ::LoadLibraryW(library.c_str());
    const auto entry =
        reinterpret_cast<LPFNGETCLASSOBJECT>(reinterpret_cast<void*>(::GetProcAddress(module, "DllGetClassObject")));
    if (entry == nullptr) throw std::runtime_error{"the library is none of COM's"};
    host::ComPtr<IClassFactory> factory;
    Require(entry(CLSID_Connect, IID_IClassFactory, reinterpret_cast<void**>(factory.GetAddressOf())), "class");
    return factory;
}

} // namespace

AddInUnderTest::AddInUnderTest() = default;

AddInUnderTest::~AddInUnderTest()
{
    if (m_addIn) m_addIn->OnDisconnection(0, nullptr);
    m_session.Release();
}

void AddInUnderTest::Load(const std::wstring& library)
{
    Require(ClassOf(library)->CreateInstance(nullptr, host::kExtensibilityId,
                                             reinterpret_cast<void**>(m_addIn.GetAddressOf())),
            "instance");
    const host::ComPtr<host::ComAddInObject> entry =
        host::MakeObject<host::ComAddInObject>(L"CorvaneMSOfficePowerPoint.Connect", L"");
    m_addIn->OnConnection(&m_session.Application(), kStartUp, entry.Get(), nullptr);
    host::ComPtr<host::IRibbonExtensibility> ribbon;
    Require(m_addIn->QueryInterface(host::kRibbonExtensibilityId, reinterpret_cast<void**>(ribbon.GetAddressOf())),
            "ribbon");
    BSTR xml = nullptr;
    Require(ribbon->GetCustomUI(nullptr, &xml), "ribbon");
    ::SysFreeString(xml);
}

void AddInUnderTest::Press(const std::wstring& control)
{
    host::ComPtr<IDispatch> callbacks;
    Require(m_addIn->QueryInterface(IID_IDispatch, reinterpret_cast<void**>(callbacks.GetAddressOf())), "callbacks");
    std::wstring name = L"RibbonHandler";
    LPOLESTR names[] = {name.data()};
    DISPID member = 0;
    Require(callbacks->GetIDsOfNames(IID_NULL, names, 1, LOCALE_USER_DEFAULT, &member), "RibbonHandler");
    const auto pressed = host::MakeObject<host::RibbonControlObject>(control, L"", nullptr);
    VARIANT argument{};
    argument.vt = VT_DISPATCH;
    argument.pdispVal = pressed.Get();
    DISPPARAMS arguments{&argument, nullptr, 1, 0};
    Require(callbacks->Invoke(member, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &arguments, nullptr, nullptr,
                              nullptr),
            "RibbonHandler");
}

} // namespace bench
