#include "objects/Application.h"

#include "documents/Refusal.h"
#include "objects/Collections.h"
#include "objects/ComAddIn.h"
#include "objects/CommandBars.h"
#include "objects/HostModel.h"
#include "objects/Session.h"

namespace host
{
namespace
{

constexpr long kBuild = 4266;
constexpr long kMailItem = 0; // of OlItemType

Value Nothing() { return Value{static_cast<IDispatch*>(nullptr)}; }

IID EventsOf(const HostModel& model) { return model.events ? model.events->id : IID_NULL; }

} // namespace

ApplicationObject::ApplicationObject(Session& session)
    : AutomationObject{session.Model().application.name, session.Model().application.id}, m_session{session},
      m_events{*this, EventsOf(session.Model())}
{}

std::span<const Member> ApplicationObject::Members() const
{
    return m_session.Model().application.Members(m_session.Settings().MajorVersion());
}

void* ApplicationObject::Interface(REFIID id)
{
    const bool events = id == IID_IConnectionPointContainer && m_session.Model().events;
    return events ? static_cast<IConnectionPointContainer*>(&m_events) : nullptr;
}

DocumentObject& ApplicationObject::ActiveOrFail()
{
    if (DocumentObject* active = m_session.Reachable()) return *active;
    Refuse(m_session.Kind(), Refusal::NoDocument);
}

Value ApplicationObject::GetName(const Arguments&) { return Value{m_session.Facts().name}; }

Value ApplicationObject::GetVersion(const Arguments&)
{
    return Value{m_session.Settings().version + m_session.Facts().versionEnd};
}

Value ApplicationObject::GetBuild(const Arguments&)
{
    return Value{m_session.Settings().version + L"." + std::to_wstring(kBuild)};
}

Value ApplicationObject::GetBuildNumber(const Arguments&) { return Value{kBuild}; }

Value ApplicationObject::GetWindowHandle(const Arguments&)
{
    if (m_session.Settings().Setting("host.window") == "untold")
        throw AutomationError{DISP_E_MEMBERNOTFOUND, L"The object has no such member."};
    return Value{static_cast<long>(reinterpret_cast<LONG_PTR>(m_session.window))};
}

Value ApplicationObject::GetDocuments(const Arguments&) { return Value{MakeObject<DocumentsObject>(m_session).Get()}; }

Value ApplicationObject::GetWindows(const Arguments&)
{
    std::vector<ComPtr<IDispatch>> windows;
    for (const auto& document : m_session.OpenDocuments())
        for (long number = 1; !document->IsProtected() && number <= document->WindowCount(); ++number)
            windows.push_back(document->Window(number));
    return Value{m_session.WindowList(std::move(windows)).Get()};
}

Value ApplicationObject::GetActiveWindow(const Arguments&) { return Value{ActiveOrFail().Window(1).Get()}; }

Value ApplicationObject::GetActiveWindowOrNothing(const Arguments&)
{
    DocumentObject* active = m_session.Reachable();
    return active ? Value{active->Window(1).Get()} : Nothing();
}

Value ApplicationObject::GetActiveDocument(const Arguments&) { return Value{&ActiveOrFail()}; }
Value ApplicationObject::GetActiveDocumentOrNothing(const Arguments&) { return Value{m_session.Reachable()}; }
Value ApplicationObject::GetCommandBars(const Arguments&) { return Value{&m_session.CommandBars()}; }

Value ApplicationObject::GetComAddIns(const Arguments&) { return Value{MakeObject<ComAddInsObject>(m_session).Get()}; }

Value ApplicationObject::Run(const Arguments& arguments)
{
    m_session.RunMacro(arguments.At(0).Text());
    return {};
}

Value ApplicationObject::Activate(const Arguments&)
{
    ::SetForegroundWindow(m_session.window);
    return {};
}

Value ApplicationObject::Interactive(const Arguments& arguments)
{
    if (!arguments.IsPut()) return Value::OfBoolean(m_interactive);
    m_interactive = arguments.At(0).Boolean();
    return {};
}

Value ApplicationObject::GetReady(const Arguments&) { return Value::OfBoolean(!m_session.IsEditing()); }

Value ApplicationObject::CreateItem(const Arguments& arguments)
{
    if (arguments.At(0).Number() != kMailItem) throw AutomationError{E_INVALIDARG, L"Only mail items are offered."};
    return Value{m_session.MakeNew().Get()};
}

DocumentsObject::DocumentsObject(Session& session)
    : AutomationObject{session.Model().documents.name, session.Model().documents.id}, m_session{session}
{}

std::span<const Member> DocumentsObject::Members() const
{
    return m_session.Model().documents.Members(m_session.Settings().MajorVersion());
}

std::vector<DocumentObject*> DocumentsObject::Reachable() const
{
    std::vector<DocumentObject*> reachable;
    for (const auto& document : m_session.OpenDocuments())
        if (!document->IsProtected()) reachable.push_back(document.Get());
    return reachable;
}

Value DocumentsObject::Item(const Arguments& arguments)
{
    const Value index = arguments.At(0);
    const auto open = Reachable();
    if (index.Type() != VT_BSTR) return Value{open[ItemPosition(index, open.size()) - 1]};
    const std::wstring name = index.Text();
    for (DocumentObject* document : open)
        if (::lstrcmpiW(document->File().Name().c_str(), name.c_str()) == 0) return Value{document};
    throw AutomationError{E_INVALIDARG, name + L" is not open."};
}

Value DocumentsObject::Count(const Arguments&) { return Value{static_cast<long>(Reachable().size())}; }
Value DocumentsObject::Add(const Arguments&) { return Value{&m_session.New()}; }

Value DocumentsObject::OpenFile(const Arguments& arguments, bool readOnly)
{
    return Value{&m_session.Open(arguments.At(0).Text(), readOnly)};
}

} // namespace host
