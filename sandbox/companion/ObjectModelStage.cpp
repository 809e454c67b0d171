#include "companion/ObjectModelStage.h"

#include <algorithm>
#include <span>

#include "companion/AddInCommands.h"
#include "platform/Files.h"
#include "platform/Procedure.h"
#include "platform/Utf8.h"
#include "player/Run.h"

namespace corvane::companion
{
namespace
{

constexpr long kTextProperty = 4;  // msoPropertyTypeString
constexpr std::int32_t kTrue = -1; // msoTrue

// The name that tells open presentations apart; empty of one that is closed, or where there is none.
template<class Find>
std::wstring FullNameOf(Find presentation)
{
    std::wstring name;
    Ignoring([&] { name = presentation().Text(L"FullName"); });
    return name;
}

[[noreturn]] void Refuse(const wchar_t* what) { player::Fail(std::wstring{what} + L" is not for this host"); }

} // namespace

ObjectModelStage::ObjectModelStage(LateBound application, std::wstring folder, Report& report)
    : m_application{std::move(application)}, m_folder{std::move(folder)}, m_report{report}
{}

void ObjectModelStage::SetReady()
{
    m_ready = true;
    LookForWindow();
    const std::string xml = ToUtf8(Ribbon());
    if (!xml.empty()) WriteFile(m_folder + L"\\customUI.xml", std::as_bytes(std::span{xml}));
}

int ObjectModelStage::HostVersion() const { return std::stoi(m_application.Text(L"Version")); }

void ObjectModelStage::AddFault(const std::wstring& fault)
{
    const std::lock_guard lock{m_faultsMutex};
    m_faults.push_back(fault);
}

std::vector<std::wstring> ObjectModelStage::TakeFaults()
{
    const std::lock_guard lock{m_faultsMutex};
    if (FileExists(m_folder + L"\\" + kStopName)) m_faults.push_back(L"it was stopped");
    return std::exchange(m_faults, {});
}

// A version that does not tell its window is asked for by the window that its thread works in.
void ObjectModelStage::LookForWindow()
{
    const auto untold =
        Catch([this] { m_window = reinterpret_cast<HWND>(static_cast<LONG_PTR>(m_application.Number(L"HWND"))); });
    if (untold) m_window = ::GetActiveWindow();
}

LateBound ObjectModelStage::Active() const { return m_application.Object(L"ActivePresentation"); }

LateBound ObjectModelStage::AddIn() const { return m_application.Object(L"COMAddIns").Object(L"Item", kAddInProgId); }

std::wstring ObjectModelStage::AddInState() const
{
    std::wstring state = L"absent";
    Ignoring([&] { state = AddIn().Property(L"Connect").Boolean() ? L"loaded" : L"failed"; });
    return state;
}

void ObjectModelStage::Keep(LateBound presentation)
{
    m_own.push_back(std::move(presentation));
    LookForWindow();
}

bool ObjectModelStage::IsOwn(const LateBound& presentation) const
{
    const auto name = presentation.Text(L"FullName");
    return std::ranges::any_of(m_own, [&](const auto& own) { return FullNameOf([&] { return own; }) == name; });
}

bool ObjectModelStage::HasOthers() const
{
    if (!m_application) return false; // it was told to quit
    bool others = true;
    Ignoring([&] {
        const LateBound presentations = m_application.Object(L"Presentations");
        std::int32_t number = presentations.Number(L"Count");
        while (number > 0 && IsOwn(presentations.Object(L"Item", number)))
            --number;
        others = number > 0;
    });
    return others;
}

void ObjectModelStage::RequireOwn() const
{
    if (!FullNameOf([&] { return Active(); }).empty() && !IsOwn(Active()))
        player::Fail(L"the active presentation is none that the player has opened");
}

void ObjectModelStage::New()
{
    const LateBound made{m_application.Object(L"Presentations").Call(L"Add").Object()};
    const std::wstring name = made.Text(L"Name");
    const std::wstring word = name.substr(0, name.find_last_not_of(L"0123456789") + 1);
    if (word != name && word != std::exchange(m_newName, word)) m_report.Tell(kNewNameWords + word);
    if (m_author) {
        const std::int32_t saved = made.Number(L"Saved");
        made.Object(L"BuiltInDocumentProperties").Object(L"Item", L"Author").Put(L"Value", *m_author);
        made.Put(L"Saved", saved);
    }
    Keep(made);
}

std::wstring ObjectModelStage::InItsWords(const std::wstring& text) const
{
    return Renamed(text, std::wstring{kNewName}, m_newName);
}

void ObjectModelStage::Open(const std::wstring& path)
{
    Keep(LateBound{m_application.Object(L"Presentations").Call(L"Open", path, m_readOnly ? kTrue : 0).Object()});
}

void ObjectModelStage::Save()
{
    RequireOwn();
    Active().Call(L"Save");
}

void ObjectModelStage::SaveAs(const std::wstring& path, std::optional<long> format)
{
    RequireOwn();
    format ? Active().Call(L"SaveAs", path, *format) : Active().Call(L"SaveAs", path);
}

void ObjectModelStage::Close()
{
    RequireOwn();
    Active().Call(L"Close");
    LookForWindow();
}

void ObjectModelStage::Activate(const std::wstring& name)
{
    m_application.Object(L"Presentations")
        .Object(L"Item", name)
        .Object(L"Windows")
        .Object(L"Item", 1L)
        .Call(L"Activate");
    LookForWindow();
}

std::optional<std::wstring> ObjectModelStage::ActiveName() const
{
    std::optional<std::wstring> name;
    Ignoring([&] { name = Active().Text(L"Name"); });
    return name;
}

std::optional<std::wstring> ObjectModelStage::Property(const std::wstring& name) const
{
    const LateBound properties = Active().Object(L"CustomDocumentProperties");
    std::optional<std::wstring> text;
    Ignoring([&] { text = properties.Object(L"Item", name).Text(L"Value"); });
    return text;
}

void ObjectModelStage::SetProperty(const std::wstring& name, const std::wstring& text)
{
    RequireOwn();
    const LateBound presentation = Active();
    const std::int32_t saved = presentation.Number(L"Saved"); // whoever sends a presentation has saved it
    const LateBound properties = presentation.Object(L"CustomDocumentProperties");
    Ignoring([&] { properties.Object(L"Item", name).Call(L"Delete"); });
    properties.Call(L"Add", name, false, kTextProperty, text);
    presentation.Put(L"Saved", saved);
}

// The object that the add-in offers is there from when its commands can be pressed; asked earlier, it would tell the
// user that they cannot.
std::wstring ObjectModelStage::Ribbon() const
{
    std::wstring xml;
    Ignoring([&] {
        if (AddIn().Object(L"Object")) xml = RibbonXml();
    });
    return xml;
}

bool ObjectModelStage::HasCommand(const std::wstring& name) const { return !CallbackOf(Ribbon(), name).empty(); }

void ObjectModelStage::Press(const std::wstring& name)
{
    LookForWindow();
    Guarded([&] {
        RequireOwn();
        CallBack(CallbackOf(Ribbon(), name), name);
    });
}

void ObjectModelStage::CallController(const std::wstring& method)
{
    LookForWindow();
    Guarded([&] {
        RequireOwn();
        companion::CallController(method);
    });
}

void ObjectModelStage::Guarded(const std::function<void()>& action)
{
    ++m_running;
    if (const auto failure = Catch(action)) AddFault(failure->Description());
    --m_running;
}

void ObjectModelStage::RunMacro(const std::wstring&, const std::wstring&) { Refuse(L"the macro of a text"); }
std::optional<std::wstring> ObjectModelStage::MenuEntries(const std::vector<std::wstring>&) const { Refuse(L"a menu"); }
bool ObjectModelStage::ShowPage(const std::wstring&) { Refuse(L"a page of the window"); }
bool ObjectModelStage::HasRun(const std::wstring&) const { Refuse(L"what became of a macro"); }
player::Mail ObjectModelStage::LastMail() const { Refuse(L"another program's mail"); }

void ObjectModelStage::Set(const std::wstring& name, const std::wstring& value)
{
    if (name == L"author")
        m_author = value;
    else if (name == L"document.readonly")
        m_readOnly = value == L"true";
    else
        Refuse(L"a change of its setting");
}

void ObjectModelStage::DisconnectAddIns() { AddIn().Put(L"Connect", false); }

void ObjectModelStage::CloseOwn()
{
    for (const LateBound& presentation : std::exchange(m_own, {}))
        Ignoring([&] {
            presentation.Put(L"Saved", kTrue);
            presentation.Call(L"Close");
        });
}

void ObjectModelStage::Quit()
{
    CloseOwn();
    const LateBound application = std::exchange(m_application, {}); // the host may let go of the player in between
    if (application.Object(L"Presentations").Number(L"Count") == 0)
        application.Call(L"Quit");
    else
        m_report.Tell(kLeftWords + std::wstring{kOthersWords});
}

} // namespace corvane::companion
