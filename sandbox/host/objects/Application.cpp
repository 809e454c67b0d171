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

Variant Nothing() { return Variant{static_cast<IDispatch*>(nullptr)}; }

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

Variant ApplicationObject::GetName(const Arguments&) { return Variant{m_session.Facts().name}; }

Variant ApplicationObject::GetVersion(const Arguments&)
{
    return Variant{m_session.Settings().version + m_session.Facts().versionEnd};
}

Variant ApplicationObject::GetBuild(const Arguments&)
{
    return Variant{m_session.Settings().version + L"." + std::to_wstring(kBuild)};
}

Variant ApplicationObject::GetBuildNumber(const Arguments&) { return Variant{kBuild}; }

Variant ApplicationObject::GetWindowHandle(const Arguments&)
{
    if (m_session.Settings().Setting("host.window") == "untold")
        throw Error{DISP_E_MEMBERNOTFOUND, {}, L"The object has no such member."};
    return Variant{static_cast<long>(reinterpret_cast<LONG_PTR>(m_session.window))};
}

Variant ApplicationObject::GetDocuments(const Arguments&)
{
    return Variant{MakeObject<DocumentsObject>(m_session).Get()};
}

Variant ApplicationObject::GetWindows(const Arguments&)
{
    std::vector<ComPtr<IDispatch>> windows;
    for (const auto& document : m_session.OpenDocuments())
        for (long number = 1; !document->IsProtected() && number <= document->WindowCount(); ++number)
            windows.push_back(document->Window(number));
    return Variant{m_session.WindowList(std::move(windows)).Get()};
}

Variant ApplicationObject::GetActiveWindow(const Arguments&) { return Variant{ActiveOrFail().Window(1).Get()}; }

Variant ApplicationObject::GetActiveWindowOrNothing(const Arguments&)
{
    DocumentObject* active = m_session.Reachable();
    return active ? Variant{active->Window(1).Get()} : Nothing();
}

Variant ApplicationObject::GetActiveDocument(const Arguments&) { return Variant{&ActiveOrFail()}; }
Variant ApplicationObject::GetActiveDocumentOrNothing(const Arguments&) { return Variant{m_session.Reachable()}; }
Variant ApplicationObject::GetCommandBars(const Arguments&) { return Variant{&m_session.CommandBars()}; }

Variant ApplicationObject::GetComAddIns(const Arguments&)
{
    return Variant{MakeObject<ComAddInsObject>(m_session).Get()};
}

Variant ApplicationObject::Run(const Arguments& arguments)
{
    m_session.RunMacro(arguments.At(0).Text());
    return {};
}

Variant ApplicationObject::Activate(const Arguments&)
{
    ::SetForegroundWindow(m_session.window);
    return {};
}

Variant ApplicationObject::Interactive(const Arguments& arguments)
{
    if (!arguments.IsPut()) return Variant{m_interactive};
    m_interactive = arguments.At(0).Boolean();
    return {};
}

Variant ApplicationObject::GetReady(const Arguments&) { return Variant{!m_session.IsEditing()}; }

Variant ApplicationObject::CreateItem(const Arguments& arguments)
{
    if (arguments.At(0).Number() != kMailItem) throw Error{E_INVALIDARG, {}, L"Only mail items are offered."};
    return Variant{m_session.MakeNew().Get()};
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

Variant DocumentsObject::Item(const Arguments& arguments)
{
    const Variant index = arguments.At(0);
    const auto open = Reachable();
    if (index.Type() != VT_BSTR) return Variant{open[ItemPosition(index, open.size()) - 1]};
    const std::wstring name = index.Text();
    for (DocumentObject* document : open)
        if (::lstrcmpiW(document->File().Name().c_str(), name.c_str()) == 0) return Variant{document};
    throw Error{E_INVALIDARG, {}, name + L" is not open."};
}

Variant DocumentsObject::Count(const Arguments&) { return Variant{static_cast<long>(Reachable().size())}; }
Variant DocumentsObject::Add(const Arguments&) { return Variant{&m_session.New()}; }

Variant DocumentsObject::OpenFile(const Arguments& arguments, bool readOnly)
{
    return Variant{&m_session.Open(arguments.At(0).Text(), readOnly)};
}

} // namespace host
