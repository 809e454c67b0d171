#include "AddInUnderTest.h"

#include "BareRequest.h"
#include "objects/Application.h"
#include "objects/ComAddIn.h"
#include "objects/RibbonObjects.h"

namespace bench
{
namespace
{

constexpr LONG kStartUp = 1;

// What the host gets when it asks for the ribbon.
std::wstring RibbonOf(IUnknown& addIn)
{
    IRibbonExtensibility* ribbon = nullptr;
    BSTR xml = nullptr;
    if (FAILED(addIn.QueryInterface(IID_PPV_ARGS(&ribbon)))) return {};
    ribbon->GetCustomUI(nullptr, &xml);
    ribbon->Release();
    std::wstring text{xml, ::SysStringLen(xml)};
    ::SysFreeString(xml);
    return text;
}

// Presses a button of the ribbon, given as the control that its callback is about; returns when the command has ended.
HRESULT PressControl(IUnknown& addIn, IDispatch& control)
{
    IDispatch* callbacks = nullptr;
    HRESULT result = addIn.QueryInterface(IID_PPV_ARGS(&callbacks));
    if (FAILED(result)) return result;
    std::wstring name = L"RibbonHandler";
    LPOLESTR names[] = {name.data()};
    DISPID member = 0;
    result = callbacks->GetIDsOfNames(IID_NULL, names, 1, LOCALE_NEUTRAL, &member);
    VARIANTARG argument{};
    argument.vt = VT_DISPATCH;
    argument.pdispVal = &control;
    DISPPARAMS parameters{&argument, nullptr, 1, 0};
    if (SUCCEEDED(result))
        result = callbacks->Invoke(member, IID_NULL, LOCALE_NEUTRAL, DISPATCH_METHOD, &parameters, nullptr, nullptr,
                                   nullptr);
    callbacks->Release();
    return result;
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
    m_library.emplace(library);
    *m_addIn.GetAddressOf() = m_library->Create<::IDTExtensibility2>(CLSID_Connect);
    if (m_addIn == nullptr) throw std::runtime_error{"the library offers no add-in"};
    const host::ComPtr<host::ComAddInObject> entry =
        host::MakeObject<host::ComAddInObject>(L"CorvaneMSOfficePowerPoint.Connect", L"");
    m_addIn->OnConnection(&m_session.Application(), kStartUp, entry.Get(), nullptr);
    if (RibbonOf(*m_addIn.Get()).empty()) throw std::runtime_error{"the add-in has no ribbon"};
}

void AddInUnderTest::Press(const std::wstring& control)
{
    const auto pressed = host::MakeObject<host::RibbonControlObject>(control, L"", nullptr);
    Require(PressControl(*m_addIn.Get(), *pressed.Get()), "RibbonHandler");
}

} // namespace bench
