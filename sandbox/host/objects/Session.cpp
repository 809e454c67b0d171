#include "objects/Session.h"

#include <algorithm>
#include <cstdlib>
#include <optional>

#include "base/Text.h"
#include "documents/Refusal.h"
#include "objects/AddInObjects.h"
#include "objects/Application.h"
#include "objects/Collections.h"
#include "objects/CommandBars.h"
#include "platform/MessageLoop.h"

namespace host
{
namespace
{

constexpr int kCloseFinalVersion = 14;
constexpr long kNewCommand = 18; // FileNew, out of use while a cell is edited

// The settings of a new mail item's fields.
constexpr std::pair<const char*, const char*> kMailSettings[] = {
    {"mail.subject", "Subject"}, {"mail.body", "Body"}, {"mail.to", "To"}};

// What calls fail with while the user edits a cell; 0 while nobody does.
std::int32_t EditingNumber(const Options& options)
{
    return static_cast<std::int32_t>(std::strtoul(options.Setting("editing").c_str(), nullptr, 16));
}

std::wstring OwnerOfMacro(const std::wstring& name)
{
    const std::size_t mark = name.rfind(L'!');
    return mark == std::wstring::npos ? std::wstring{} : name.substr(0, mark);
}

} // namespace

Session::Session(Options options)
    : m_options{std::move(options)}, m_application{MakeObject<ApplicationObject>(*this)},
      m_commandBars{MakeObject<CommandBarsObject>(Facts().menuBar)}
{
    ObjectCore::SetSource(std::wstring{L"Microsoft "} + Facts().product);
    FillMenuBar(m_commandBars->MenuBar(), Facts().product, m_options.Setting("menus"));
    ShowEditing();
}

Session::~Session() = default;

std::span<const Member> Session::MembersOf(ClassTable HostModel::*table) const
{
    return (Model().*table).Members(Version().major);
}

void Session::Set(const std::string& name, const std::string& value)
{
    m_options.settings[name] = value;
    ShowEditing();
    Changed();
}

DocumentObject* Session::Active() const { return m_documents.empty() ? nullptr : m_documents.front().Get(); }

DocumentObject* Session::Reachable() const
{
    for (const auto& document : m_documents)
        if (document->WindowCount() > 0) return document->IsProtected() ? nullptr : document.Get();
    return nullptr;
}

ComPtr<DocumentObject> Session::MakeNew()
{
    std::wstring name = Widen(m_options.Setting("document.name"));
    if (name.empty()) name = Facts().newName + (Facts().numbersNew ? std::to_wstring(++m_lastNumber) : L"");
    const std::string author = m_options.settings.contains("author") ? m_options.Setting("author") : "Stand-in User";
    Document document = Document::New(Version(), name, author);
    Prepare(document);
    return MakeObject<DocumentObject>(*this, std::move(document));
}

DocumentObject& Session::New()
{
    Show(MakeNew());
    return *Active();
}

DocumentObject& Session::Open(const std::wstring& path, bool readOnly)
{
    const std::wstring full = FullPath(path);
    for (const auto& open : m_documents)
        if (SameText(open->File().FilePath(), full)) {
            Activate(*open.Get());
            return *Active();
        }
    Document document = Document::Open(Version(), full, readOnly || m_options.Setting("document.readonly") == "true");
    Prepare(document);
    Show(MakeObject<DocumentObject>(*this, std::move(document)));
    return *Active();
}

// Brings a new or an opened document into the state that the settings ask for.
void Session::Prepare(Document& document) const
{
    const std::string address = m_options.Setting("document.url");
    if (document.HasFile() && !address.empty()) document.ShowAs(Widen(address));
    if (m_options.Setting("document.final") == "true") document.SetFinal(true);
    for (const auto& [setting, field] : kMailSettings)
        for (CustomProperty& own : document.BuiltIn())
            if (Kind() == HostKind::Outlook && !document.HasFile() && own.name == field)
                own.value = m_options.Setting(setting);
    document.SetSaved(m_options.Setting("document.changed") != "true");
}

long Session::WindowsOfNext() const
{
    const std::string windows = m_options.Setting("document.windows");
    return windows.empty() ? 1 : std::strtol(windows.c_str(), nullptr, 10);
}

ComPtr<IDispatch> Session::WindowList(std::vector<ComPtr<IDispatch>> windows) const
{
    return MakeObject<ListObject>(Model().windows.name, Model().windows.id, std::move(windows));
}

void Session::Show(ComPtr<DocumentObject> document)
{
    m_documents.insert(m_documents.begin(), std::move(document));
    FireActivate();
}

void Session::Display(DocumentObject& document)
{
    const auto found = std::ranges::find(m_documents, &document, &ComPtr<DocumentObject>::Get);
    found == m_documents.end() ? Show(ComPtr<DocumentObject>{&document}) : Activate(document);
}

void Session::Activate(DocumentObject& document)
{
    const auto found = std::ranges::find(m_documents, &document, &ComPtr<DocumentObject>::Get);
    if (found == m_documents.end()) return;
    std::rotate(m_documents.begin(), found, found + 1);
    FireActivate();
}

void Session::FireActivate()
{
    Changed();
    if (Model().events == nullptr || Active() != Reachable()) return;
    m_application->Events().Fire(Model().events->activate, {Active(), Active()->Window(1).Get()});
}

void Session::Close(DocumentObject& document)
{
    const ComPtr<DocumentObject> closing{&document};
    const bool wasActive = Active() == &document;
    if (const EventTable* events = Model().events) {
        m_application->Events().Fire(events->close, {&document});
        if (Version().major >= kCloseFinalVersion) m_application->Events().Fire(events->closeFinal, {&document});
    }
    std::erase_if(m_documents, [&](const auto& open) { return open.Get() == closing.Get(); });
    closing->MarkClosed();
    Changed();
    if (wasActive && Active() != nullptr) FireActivate();
}

bool Session::MayBeSaved(DocumentObject& document)
{
    AskUser();
    return Model().events == nullptr || !m_application->Events().FireCancellable(Model().events->beforeSave, document);
}

void Session::AskUser() const
{
    if (m_options.Setting("host.asks") != "true") return;
    ::MessageBoxW(nullptr, L"Does the host go on?", Facts().product, MB_OK);
    ::EnableWindow(window, TRUE);
    ::SetActiveWindow(window);
}

bool Session::IsEditing() const { return EditingNumber(m_options) != 0; }

void Session::CheckReady() const
{
    if (IsEditing()) throw Error{EditingNumber(m_options), {}, L"The user is editing a cell."};
}

void Session::CheckAnswering() const
{
    if (HRESULT_FACILITY(EditingNumber(m_options)) == FACILITY_RPC) CheckReady(); // a busy host refuses every call
}

void Session::ShowEditing()
{
    if (BarControlObject* command = m_commandBars->MenuBar().FindId(kNewCommand)) command->SetEnabled(!IsEditing());
}

void Session::RunMacro(const std::wstring& name)
{
    const std::wstring owner = OwnerOfMacro(name);
    const std::wstring macro = owner.empty() ? name : name.substr(owner.size() + 1);
    const auto isOwner = [&](const auto& open) { return SameText(open->File().Name(), owner); };
    if (!owner.empty() && std::ranges::none_of(m_documents, isOwner)) Refuse(Kind(), Refusal::NoMacro, name);
    // PowerPoint knows a macro by its presentation's name only.
    const bool unqualified = owner.empty() && Kind() == HostKind::PowerPoint;
    const std::string setting = "macro." + Narrow(macro);
    if (unqualified || m_options.Setting(setting).empty()) Refuse(Kind(), Refusal::NoMacro, name);
    m_macrosRun.push_back(macro);
    AskUser();
    static_cast<void>(corvane::PumpUntil([&] { return m_options.Setting(setting) != "hold"; }));
    const std::string answer = m_options.Setting(setting);
    if (answer == "save" && Active() != nullptr) return Active()->Save();
    if (answer != "ok") Refuse(Kind(), Refusal::MacroFailed, name);
}

void Session::AddAddIn(ComPtr<ComAddInObject> addIn) { m_addIns.push_back(std::move(addIn)); }

void Session::Changed()
{
    if (onChanged) onChanged();
}

void Session::Release()
{
    m_documents.clear();
    m_addIns.clear();
    m_commandBars.Reset();
    m_application.Reset();
}

} // namespace host
