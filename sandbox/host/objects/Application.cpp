#include "objects/Application.h"

#include "documents/Refusal.h"
#include "objects/AddInObjects.h"
#include "objects/Collections.h"
#include "objects/CommandBars.h"

#include <algorithm>

namespace host
{
namespace
{

constexpr long kBuild = 4266;
constexpr long kMailItem = 0; // of OlItemType

IID EventsOf(const HostModel& model) { return model.events != nullptr ? model.events->id : IID_NULL; }

} // namespace

ApplicationObject::ApplicationObject(Session& session)
    : AutomationObject{session.Model().application.name, session.MembersOf(&HostModel::application),
                       session.Model().application.id},
      m_session{session}, m_events{*this, EventsOf(session.Model())}
{}

void* ApplicationObject::Interface(REFIID id)
{
    const bool events = id == IID_IConnectionPointContainer && m_session.Model().events != nullptr;
    return events ? static_cast<IConnectionPointContainer*>(&m_events) : nullptr;
}

std::wstring ApplicationObject::Version() const { return m_session.Settings().version + m_session.Facts().versionEnd; }

std::wstring ApplicationObject::Build() const { return m_session.Settings().version + L"." + std::to_wstring(kBuild); }

long ApplicationObject::BuildNumber() const { return kBuild; }

long ApplicationObject::WindowHandle() const
{
    if (m_session.Settings().Setting("host.window") == "untold")
        throw Error{DISP_E_MEMBERNOTFOUND, {}, L"The object has no such member."};
    return static_cast<long>(reinterpret_cast<LONG_PTR>(m_session.window));
}

ComPtr<IDispatch> ApplicationObject::Documents() { return MakeObject<DocumentsObject>(m_session); }

ComPtr<IDispatch> ApplicationObject::Windows()
{
    std::vector<ComPtr<IDispatch>> windows;
    for (const auto& document : m_session.OpenDocuments())
        for (long number = 1; !document->IsProtected() && number <= document->WindowCount(); ++number)
            windows.push_back(document->Window(number));
    return m_session.WindowList(std::move(windows));
}

ComPtr<IDispatch> ApplicationObject::ActiveWindowOrNothing()
{
    DocumentObject* const active = m_session.Reachable();
    return active != nullptr ? active->Window(1) : nullptr;
}

DocumentObject* ApplicationObject::ActiveDocument()
{
    if (DocumentObject* active = m_session.Reachable()) return active;
    Refuse(m_session.Kind(), Refusal::NoDocument);
}

ComPtr<IDispatch> ApplicationObject::CommandBars() { return &m_session.CommandBars(); }
ComPtr<IDispatch> ApplicationObject::ComAddIns() { return MakeObject<ComAddInsObject>(m_session); }

ComPtr<DocumentObject> ApplicationObject::CreateItem(const Arguments& arguments)
{
    if (arguments.At(0).Number() != kMailItem) throw Error{E_INVALIDARG, {}, L"Only mail items are offered."};
    return m_session.MakeNew();
}

DocumentsObject::DocumentsObject(Session& session)
    : AutomationObject{session.Model().documents.name, session.MembersOf(&HostModel::documents),
                       session.Model().documents.id},
      m_session{session}
{}

std::vector<DocumentObject*> DocumentsObject::Reachable() const
{
    std::vector<DocumentObject*> reachable;
    for (const auto& document : m_session.OpenDocuments())
        if (!document->IsProtected()) reachable.push_back(document.Get());
    return reachable;
}

DocumentObject* DocumentsObject::Item(const Arguments& arguments) const
{
    return ItemOf(Reachable(), arguments.At(0), [](DocumentObject* one) { return one->File().Name(); });
}

} // namespace host
