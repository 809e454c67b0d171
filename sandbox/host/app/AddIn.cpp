#include "app/AddIn.h"

#include "base/Console.h"
#include "base/Text.h"
#include "documents/Files.h"
#include "objects/Application.h"
#include "objects/Session.h"
#include "platform/LateBound.h"
#include "platform/Registry.h"

namespace host
{
namespace
{

namespace Registry = corvane::Registry;

constexpr std::int32_t kOffLoadBehavior = 2;
constexpr LONG kHostShutdown = 0;
constexpr long kConnectAtStart = 1;

std::wstring AddInsKey(const HostFacts& facts)
{
    return std::wstring{L"Software\\Microsoft\\Office\\"} + facts.product + L"\\Addins";
}

std::wstring Hex(HRESULT result)
{
    wchar_t text[16];
    ::swprintf_s(text, std::size(text), L"0x%08lX", static_cast<unsigned long>(result));
    return text;
}

// The empty array that Office hands over as "custom". Owned by this object.
class CustomArray
{
public:
    CustomArray() : m_array{::SafeArrayCreateVector(VT_VARIANT, 1, 0)} {}
    CustomArray(const CustomArray&) = delete;
    CustomArray& operator=(const CustomArray&) = delete;
    ~CustomArray() { ::SafeArrayDestroy(m_array); }

    [[nodiscard]] SAFEARRAY** Get() { return &m_array; }

private:
    SAFEARRAY* m_array;
};

} // namespace

std::map<std::wstring, AddInEntry> RegisteredAddIns(const HostFacts& facts)
{
    std::map<std::wstring, AddInEntry> entries;
    for (const Registry::Hive hive : {Registry::Hive::User, Registry::Hive::Machine})
        for (const std::wstring& name : Registry::KeyNames(AddInsKey(facts), {hive})) {
            const std::wstring key = AddInsKey(facts) + L"\\" + name;
            const auto text = [&](const wchar_t* value) {
                return Registry::ReadText(key, value, {hive}).value_or(L"");
            };
            const auto behavior = Registry::ReadNumber(key, L"LoadBehavior", {hive}).value_or(0);
            entries.try_emplace(name, AddInEntry{name, text(L"FriendlyName"), text(L"Description"), behavior});
        }
    return entries;
}

AddIn::AddIn(Session& session, ClassLoader& classes, AddInEntry entry)
    : m_session{session}, m_classes{classes}, m_entry{std::move(entry)}, m_registration{MakeObject<ComAddInObject>(
                                                                             m_entry.progId, m_entry.friendlyName)}
{
    m_registration->onDisconnect = [this] {
        SwitchOff();
        Disconnect();
    };
    m_session.AddAddIn(m_registration);
}

void AddIn::Load()
{
    try {
        Create();
        Connect();
        m_state = AddInState::Connected;
        if (m_session.Settings().Edition() != Edition::Menus) ReadRibbonXml();
        CustomArray custom;
        if (m_session.Settings().connectMode == kConnectAtStart)
            ThrowIfFailed(m_extensibility->OnStartupComplete(custom.Get()), L"OnStartupComplete failed");
    } catch (const Error& error) {
        Fail(error.Description() + L" (" + Hex(error.Number()) + L")");
    } catch (const std::exception& error) {
        Fail(Widen(error.what()));
    }
    m_session.Changed();
}

void AddIn::Create()
{
    const CLSID classId = ClassLoader::ClassOf(m_entry.progId);
    m_registration->SetClass(classId);
    const ComPtr<IUnknown> object = m_classes.Create(classId);
    ThrowIfFailed(object.As(&m_extensibility), L"it does not offer IDTExtensibility2");
    object.As(&m_callbacks);
}

void AddIn::Connect()
{
    CustomArray custom;
    m_registration->SetConnected(true);
    const auto start = std::chrono::steady_clock::now();
    const HRESULT connected = m_extensibility->OnConnection(&m_session.Application(), m_session.Settings().connectMode,
                                                            m_registration.Get(), custom.Get());
    const auto took = std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now() - start);
    ThrowIfFailed(connected, L"OnConnection failed");
    Print(L"connected " + m_entry.progId + L" in " + std::to_wstring(took.count()) + L" ms");
}

void AddIn::ReadRibbonXml()
{
    ComPtr<IRibbonExtensibility> extensibility;
    if (FAILED(m_extensibility.As(&extensibility))) return;
    const Bstr id{m_session.Facts().ribbonId};
    Bstr xml;
    ThrowIfFailed(extensibility->GetCustomUI(id.Get(), xml.Put()), L"GetCustomUI failed");
    const std::string text = Narrow(xml.Text());
    const std::wstring& folder = m_session.Settings().outFolder;
    if (!folder.empty()) WriteWholeFile(folder + L"\\customUI.xml", text);
    if (text.empty()) return Print(m_entry.progId + L" hands over no ribbon");
    m_ribbon = ShownRibbon{ReadRibbon(text, m_session.Settings().MajorVersion())};

    m_ribbonUi = MakeObject<RibbonUiObject>([this] {
        ReadDynamicStates();
        m_session.Changed();
    });
    if (!m_ribbon->ribbon.onLoad.empty()) Callback(m_ribbon->ribbon.onLoad, m_ribbonUi.Get());
    ReadDynamicStates();
}

void AddIn::ReadDynamicStates()
{
    if (!m_ribbon) return;
    m_ribbon->answers.clear();
    for (const auto* part : {&m_ribbon->ribbon.tabs, &m_ribbon->ribbon.officeMenu, &m_ribbon->ribbon.backstage})
        ReadDynamic(*part);
}

void AddIn::ReadDynamic(const std::vector<RibbonControl>& controls)
{
    for (const RibbonControl& control : controls) {
        ReadDynamic(control.children);
        const auto ask = [&](const char* attribute) {
            const std::string name = control.Attribute(attribute);
            return name.empty() ? Variant{} : Callback(name, ControlObject(control).Get());
        };
        DynamicState state;
        if (const Variant label = ask("getLabel"); !label.IsMissing()) state.label = label.Text();
        if (const Variant enabled = ask("getEnabled"); !enabled.IsMissing()) state.enabled = enabled.Boolean();
        if (const Variant visible = ask("getVisible"); !visible.IsMissing()) state.visible = visible.Boolean();
        if (state.label || state.enabled || state.visible) m_ribbon->answers[IdOf(control)] = state;
    }
}

ComPtr<RibbonControlObject> AddIn::ControlObject(const RibbonControl& control) const
{
    ComPtr<IDispatch> context;
    if (DocumentObject* active = m_session.Active()) context = active->Window(1);
    return MakeObject<RibbonControlObject>(Widen(IdOf(control)), Widen(control.Attribute("tag")), context);
}

void AddIn::Press(const RibbonControl& control)
{
    const std::string name = control.Attribute("onAction");
    if (!name.empty()) Callback(name, ControlObject(control).Get());
}

Variant AddIn::Callback(const std::string& name, IDispatch* argument)
{
    const std::wstring wide = Widen(name);
    const corvane::LateBound callbacks{m_callbacks}; // the add-in may be disconnected meanwhile
    Variant answer;
    const auto failure = corvane::Catch([&] { answer = callbacks.Call(wide.c_str(), argument); });
    if (!failure) return answer;
    if (!callbacks || failure->Number() == DISP_E_UNKNOWNNAME)
        throw Error{DISP_E_UNKNOWNNAME, {}, L"the callback " + wide + L" is missing"};
    const std::wstring report = Hex(failure->Number()) + L" " + failure->Description();
    throw Error{failure->Number(), {}, L"the callback " + wide + L" failed: " + report};
}

void AddIn::Disconnect()
{
    if (m_extensibility != nullptr && m_state == AddInState::Connected) {
        CustomArray custom;
        m_extensibility->OnBeginShutdown(custom.Get());
        const HRESULT gone = m_extensibility->OnDisconnection(kHostShutdown, custom.Get());
        if (FAILED(gone) && onFault) onFault(L"OnDisconnection failed: " + Hex(gone));
        m_state = AddInState::Disconnected;
    }
    if (m_ribbonUi != nullptr) m_ribbonUi->Disconnect();
    m_registration->SetConnected(false);
    m_registration->DropOffered();
    m_ribbon.reset();
    m_ribbonUi.Reset();
    m_callbacks.Reset();
    m_extensibility.Reset();
    m_session.Changed();
}

void AddIn::SwitchOff()
{
    const std::wstring key = AddInsKey(m_session.Facts()) + L"\\" + m_entry.progId;
    corvane::Ignoring([&] { Registry::WriteNumber(key, L"LoadBehavior", kOffLoadBehavior); });
}

void AddIn::Fail(const std::wstring& why)
{
    const std::wstring text = m_entry.progId + L": " + why;
    // With the add-in connected only its user interface is broken; Office keeps it loaded then.
    if (m_state != AddInState::Connected) {
        m_state = AddInState::Failed;
        m_registration->SetConnected(false);
        m_callbacks.Reset();
        m_extensibility.Reset();
        SwitchOff();
        PrintError(L"the add-in could not be loaded: " + text);
    }
    if (onFault) onFault(text);
}

} // namespace host
