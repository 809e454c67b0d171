#include "AddInUnderTest.h"

#include "BareRequest.h"
#include "objects/AddInObjects.h"
#include "objects/Application.h"
#include "platform/LateBound.h"

namespace bench
{
namespace
{

constexpr LONG kStartUp = 1;

// What the host gets when it asks for the ribbon.
std::wstring RibbonOf(IUnknown& addIn)
{
    corvane::ComPtr<IRibbonExtensibility> ribbon;
    corvane::Bstr xml;
    if (FAILED(addIn.QueryInterface(IID_PPV_ARGS(ribbon.GetAddressOf())))) return {};
    ribbon->GetCustomUI(nullptr, xml.Put());
    return xml.Text();
}

// Presses a button of the ribbon, given as the control that its callback is about; returns when the command has ended.
void PressControl(IUnknown& addIn, IDispatch& control)
{
    corvane::ComPtr<IDispatch> callbacks;
    Require(addIn.QueryInterface(IID_PPV_ARGS(callbacks.GetAddressOf())), "RibbonHandler");
    corvane::LateBound{callbacks}.Call(L"RibbonHandler", &control);
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
    PressControl(*m_addIn.Get(), *pressed.Get());
}

} // namespace bench
