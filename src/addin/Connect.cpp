#include "addin/Connect.h"

#include "addin/CAddInMenus.h"
#include "addin/CSaveResult.h"
#include "addin/SaveLaunchers.h"
#include "addin/UICaptions.h"
#include "forms/Messages.h"
#include "platform/HResult.h"
#include "platform/OwnerlessRequests.h"
#include "platform/Procedure.h"
#include "shared/HostVersion.h"
#include "shared/SaveResult.h"
#include "support/CCustomNames.h"
#include "support/CTraceLog.h"
#include "support/ErrorReport.h"
#include "support/Help.h"
#include "webservice/Exchange.h"
#include "webservice/WebService.h"

namespace corvane
{
namespace
{

constexpr LONG kStartUp = 1; // ext_cm_Startup

// PowerPoint's _Application, its events and the two that are listened to.
constexpr IID kPowerPointApplication = {0x91493442, 0x5A91, 0x11CF, {0x87, 0x00, 0x00, 0xAA, 0x00, 0x60, 0x26, 0x3B}};
constexpr IID kPowerPointEvents = {0x914934C2, 0x5A91, 0x11CF, {0x87, 0x00, 0x00, 0xAA, 0x00, 0x60, 0x26, 0x3B}};
constexpr DISPID kPresentationClose = 2004;
constexpr DISPID kWindowActivate = 2009;

std::vector<CustomNameRow> FetchCustomNames(const std::wstring& server, const std::wstring& page)
{
    std::vector<CustomNameRow> rows;
    const WebAnswer answer = ExecuteASPWebService(server, page, Operations::kConfigValues, {});
    for (const XmlNode& row : answer.document->Select(L"//z:row"))
        rows.push_back({row.Text(L"TokenName"), row.Text(L"Value")});
    return rows;
}

void TraceProperty(const wchar_t* label, const LateBound& object, const wchar_t* name)
{
    TraceVariable(label, object.Text(name));
}

// An object argument of an event, by its position from the last.
LateBound ObjectArgument(const DISPPARAMS& arguments, UINT fromLast)
{
    LateBound object;
    if (fromLast < arguments.cArgs)
        Ignoring([&] { object = LateBound{Variant::Of(arguments.rgvarg[fromLast]).Object()}; });
    return object;
}

} // namespace

Connect::Connect() noexcept { WatchProcedures(); }

STDMETHODIMP Connect::OnConnection(IDispatch* Application, LONG ConnectMode, IDispatch* AddInInst,
                                   SAFEARRAY** /*custom*/) noexcept
{
    return Serve([&] { Connected(Application, ConnectMode, AddInInst); });
}

void Connect::Connected(IDispatch* application, LONG connectMode, IDispatch* addInInstance) noexcept
{
    m_claim.emplace();
    Reporting([] {
        const Settings settings = Settings::Read();
        g_oTraceLog = std::make_unique<CTraceLog>(settings);
        SetRequestTimeout(settings.requestTimeout);
    });
    AtHostBoundary(L"Connect.AddinInstance_OnConnection", [&] {
        ConnectToHost(LateBound{ComPtr<IDispatch>{application}}, connectMode,
                      LateBound{ComPtr<IDispatch>{addInInstance}});
    });
}

void Connect::ConnectToHost(const LateBound& application, LONG connectMode, const LateBound& addInInstance)
{
    TraceProperty(L"Application Name", application, L"Name");
    TraceProperty(L"Application Version", application, L"Version");
    TraceProperty(L"Application Build", application, L"Build");
    TraceVariable(L"ConnectMode", std::to_wstring(connectMode));
    TraceProperty(L"AddinInst.ProgId", addInInstance, L"ProgId");
    TraceProperty(L"AddinInst.Guid", addInInstance, L"Guid");
    if (connectMode != kStartUp) return;
    StartUp(application);
    Offer(addInInstance);
}

void Connect::StartUp(const LateBound& application)
{
    ComPtr<IDispatch> typed;
    Check(application.Get()->QueryInterface(kPowerPointApplication, reinterpret_cast<void**>(typed.GetAddressOf())),
          L"Connect.StartUp");
    m_oPowerPointApp = LateBound{std::move(typed)};
    m_events = EventSubscription{
        m_oPowerPointApp.Get(), kPowerPointEvents,
        [this](DISPID member, const DISPPARAMS& arguments) { OnApplicationEvent(member, arguments); }};
    g_oAddInMenus = std::make_shared<CAddInMenus>(MakeSaveProcedures());
    g_oAddInMenus->SetApplication(application);
    g_oCustomNames = std::make_unique<CCustomNames>(&FetchCustomNames);
    SetHelpFile(Library::Folder() + L"\\CorvaneMSOfficeAddin.chm");
    SetApplicationTitle(ApplicationTitleFor(CustomName(L"Corvane")));
    g_oAddInMenus->SetUICaptions();
    if (!HasRibbon(HostVersion())) g_oAddInMenus->CreateMenus(MenuBar());
}

// For macros: COMAddIn.Object tells how the last command ended. A host that takes none loses nothing else.
void Connect::Offer(const LateBound& addInInstance)
{
    SetErrorListener([](const Error& error) noexcept { Ignoring([&] { LastSave().Fail(error); }); });
    m_oAddIn = addInInstance;
    Ignoring([this] { m_oAddIn.Put(L"Object", Variant{ComPtr<IDispatch>{MakeObject<CSaveResult>()}}); });
}

int Connect::HostVersion() const { return MajorVersion(m_oPowerPointApp.Text(L"Version")); }

LateBound Connect::MenuBar() const { return m_oPowerPointApp.Object(L"CommandBars").Object(L"Item", L"Menu Bar"); }

STDMETHODIMP Connect::OnDisconnection(LONG /*RemoveMode*/, SAFEARRAY** /*custom*/) noexcept
{
    return Serve([this] { Disconnected(); });
}

void Connect::Disconnected() noexcept
{
    const ProcedureScope scope{L"Connect.AddinInstance_OnDisconnection"};
    m_claim.reset();
    if (!m_oPowerPointApp) return; // only a connection at start-up has something to take back
    Reporting([this] {
        if (!HasRibbon(HostVersion())) AddInMenus()->DeleteMenus(MenuBar());
    });
    g_oAddInMenus.reset();
    m_events = EventSubscription{};
    Ignoring([this] { m_oAddIn.Put(L"Object", Variant{ComPtr<IDispatch>{}}); });
    m_oAddIn.Release();
    m_oPowerPointApp.Release();
    AbortOwnerless();
    CloseHelp();
    SetHostWindow(nullptr);
}

HRESULT Connect::Nothing() const noexcept
{
    return Serve([] {});
}

STDMETHODIMP Connect::GetCustomUI(BSTR /*RibbonID*/, BSTR* RibbonXml) noexcept
{
    return Serve([&] {
        if (RibbonXml == nullptr) return E_POINTER;
        *RibbonXml = nullptr;
        AtHostBoundary(L"Connect.IRibbonExtensibility_GetCustomUI",
                       [&] { *RibbonXml = Bstr{AddInMenus()->GetOfficeRibbonXML()}.Detach(); });
        return *RibbonXml == nullptr ? HandOut({}, RibbonXml) : S_OK;
    });
}

STDMETHODIMP Connect::RibbonHandler(IDispatch* control) noexcept
{
    return Serve([&] {
        AtHostBoundary(L"Connect.RibbonHandler", [&] {
            const std::wstring id = LateBound{ComPtr<IDispatch>{control}}.Text(L"Id");
            TraceVariable(L"Ctrl.Id", id);
            AddInMenus()->RibbonHandler2(id);
        });
    });
}

STDMETHODIMP Connect::GetEnabled(IDispatch* /*control*/, VARIANT_BOOL* enabled) noexcept
{
    return Serve([&] { return HandOutValue(VARIANT_FALSE, enabled); });
}

HRESULT Connect::NoText(BSTR* text) const noexcept
{
    return Serve([&] { return HandOut({}, text); });
}

STDMETHODIMP Connect::onLoad(IDispatch* ribbon, VARIANT* result) noexcept
{
    return Serve([&] {
        if (result == nullptr) return E_POINTER;
        ::VariantInit(result);
        AtHostBoundary(L"Connect.onLoad", [&] {
            if (HasRibbon(HostVersion())) AddInMenus()->SetRibbon(LateBound{ComPtr<IDispatch>{ribbon}});
        });
        return S_OK;
    });
}

void Connect::OnApplicationEvent(DISPID member, const DISPPARAMS& arguments) noexcept
{
    if (member == kPresentationClose) AtHostBoundary(L"Connect.m_oPowerPointApp_PresentationClose", [] {});
    if (member == kWindowActivate)
        AtHostBoundary(L"Connect.m_oPowerPointApp_WindowActivate",
                       [&] { WindowActivate(ObjectArgument(arguments, 1), ObjectArgument(arguments, 0)); });
}

void Connect::WindowActivate(const LateBound& presentation, const LateBound& window) const
{
    TraceProperty(L"Wn.Caption", window, L"Caption");
    if (!presentation) return;
    TraceText(L"Pres parameter is not Nothing");
    TraceProperty(L"Pres.Name", presentation, L"Name");
    if (!HasRibbon(HostVersion())) return;
    TraceText(L"PPT Version > 11");
    AddInMenus()->InvalidateControls();
}

} // namespace corvane
