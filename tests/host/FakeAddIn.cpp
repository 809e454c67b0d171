// An add-in that does a little of everything a real one does with the host. Environment variables change its conduct:
// FAKE_FAIL makes OnConnection fail, FAKE_LEAK keeps the application referenced.
#include "FakeAddIn.h"

#include <cstdlib>

#include "FakeForm.h"
#include "automation/EventSource.h"
#include "automation/OfficeInterfaces.h"
#include "platform/ClassFactory.h"
#include "platform/LateBound.h"

namespace host::test
{
namespace
{

using corvane::LateBound;

constexpr CLSID kClassId{0x6B1D5C0E, 0x2E0F, 0x4C55, {0x8E, 0x0B, 0x6B, 0x3C, 0x6F, 0x9B, 0x7A, 0x21}};
constexpr wchar_t kRibbonXml[] =
    LR"(<?xml version="1.0"?><customUI xmlns="http://schemas.microsoft.com/office/2009/07/customui" xmlns:a="Fake" )"
    LR"(onLoad="onLoad"><ribbon><tabs><tab idQ="a:Tab" label="Fake &amp;&amp; Co"><group id="Group" label="Group">)"
    LR"(<menu id="Menu" label="Menu" size="large"><button id="Hello" getLabel="GetLabel" onAction="Press"/></menu>)"
    LR"(</group></tab></tabs></ribbon><backstage><tab id="Page" label="Save"><firstColumn><taskGroup id="Tasks" )"
    LR"(label=" "><category id="Category" label="Fake"><task id="OpenForm" label="Open form" onAction="Press"/>)"
    LR"(<task id="Broken" label="Broken" onAction="Missing"/></category></taskGroup></firstColumn></tab></backstage>)"
    LR"(</customUI>)";

std::wstring Environment(const wchar_t* name)
{
    const wchar_t* value = ::_wgetenv(name);
    return value ? value : L"";
}

class FakeAddIn final : public AutomationObject<IDTExtensibility2>
{
public:
    FakeAddIn() : AutomationObject{L"FakeAddIn", kMembers} {}

    void* Interface(REFIID id) override
    {
        if (id == __uuidof(IRibbonExtensibility)) return &m_ribbon;
        return id == kApplicationEventsId ? static_cast<IDTExtensibility2*>(this) : nullptr;
    }

    STDMETHODIMP OnConnection(IDispatch* application, LONG, IDispatch*, SAFEARRAY**) override
    {
        if (!Environment(L"FAKE_FAIL").empty()) return E_FAIL;
        m_application = application;
        ComPtr<IConnectionPointContainer> container;
        if (FAILED(m_application.As(&container))) return S_OK; // a host without events
        container->FindConnectionPoint(kApplicationEventsId, m_events.GetAddressOf());
        return m_events->Advise(static_cast<IDTExtensibility2*>(this), &m_cookie);
    }

    STDMETHODIMP OnDisconnection(LONG, SAFEARRAY**) override
    {
        if (m_events) m_events->Unadvise(m_cookie);
        m_events.Reset();
        m_ribbonUi.Release();
        if (!Environment(L"FAKE_LEAK").empty()) m_application.Get()->AddRef();
        m_application.Reset();
        return S_OK;
    }

    STDMETHODIMP OnAddInsUpdate(SAFEARRAY**) override { return S_OK; }
    STDMETHODIMP OnStartupComplete(SAFEARRAY**) override { return S_OK; }
    STDMETHODIMP OnBeginShutdown(SAFEARRAY**) override { return S_OK; }

private:
    static const Member kMembers[5];

    // The second interface of the object, with the same identity.
    struct RibbonSide final : AutomationObject<IRibbonExtensibility>
    {
        explicit RibbonSide(FakeAddIn& owner) : AutomationObject{L"RibbonSide"}, m_owner{owner} {}
        STDMETHODIMP QueryInterface(REFIID id, void** object) noexcept override
        {
            return m_owner.QueryInterface(id, object);
        }
        STDMETHODIMP_(ULONG) AddRef() noexcept override { return m_owner.AddRef(); }
        STDMETHODIMP_(ULONG) Release() noexcept override { return m_owner.Release(); }
        STDMETHODIMP GetCustomUI(BSTR, BSTR* xml) override { return corvane::HandOut(kRibbonXml, xml); }
        FakeAddIn& m_owner;
    };

    void OnLoad(const Arguments& arguments) { m_ribbonUi = LateBound{arguments.At(0).Object()}; }

    std::wstring GetLabel() { return std::to_wstring(m_activations) + L" activations"; }

    void WindowActivate(const Arguments& arguments)
    {
        static_cast<void>(LateBound{arguments.At(1).Object()}.Text(L"caption"));
        ++m_activations;
        if (m_ribbonUi) m_ribbonUi.Call(L"Invalidate");
    }

    void PresentationClose() { ++m_closes; }

    void Press(const Arguments& arguments)
    {
        const std::wstring id = LateBound{arguments.At(0).Object()}.Text(L"id");
        if (id != L"Hello") return ShowFakeForm();
        const std::wstring text = GetLabel() + L"\r\nand  " + std::to_wstring(m_closes) + L" closed";
        ::MessageBoxW(nullptr, text.c_str(), L"Fake", MB_YESNO | MB_ICONQUESTION);
    }

    RibbonSide m_ribbon{*this};
    ComPtr<IDispatch> m_application;
    ComPtr<IConnectionPoint> m_events;
    LateBound m_ribbonUi;
    DWORD m_cookie = 0;
    long m_activations = 0;
    long m_closes = 0;
};

const Member FakeAddIn::kMembers[] = {
    {101, L"onLoad", kMethod, Answer<&FakeAddIn::OnLoad>},
    {102, L"Press", kMethod, Answer<&FakeAddIn::Press>},
    {103, L"GetLabel", kMethod, Answer<&FakeAddIn::GetLabel>},
    {2009, L"WindowActivate", kMethod, Answer<&FakeAddIn::WindowActivate>},
    {2004, L"PresentationClose", kMethod, Answer<&FakeAddIn::PresentationClose>},
};

HRESULT Create(REFIID id, void** object) { return MakeObject<FakeAddIn>()->QueryInterface(id, object); }

} // namespace
} // namespace host::test

STDAPI DllGetClassObject(REFCLSID classId, REFIID id, void** object)
{
    if (classId != host::test::kClassId) return CLASS_E_CLASSNOTAVAILABLE;
    using Factory = corvane::ClassFactory<decltype(&host::test::Create)>;
    return corvane::MakeObject<Factory>(&host::test::Create)->QueryInterface(id, object);
}

STDAPI DllCanUnloadNow() { return corvane::Library::IsIdle() ? S_OK : S_FALSE; }
