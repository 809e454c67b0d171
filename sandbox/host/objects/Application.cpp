#include "objects/Application.h"

#include "automation/OfficeInterfaces.h"
#include "objects/Collections.h"
#include "objects/ComAddIn.h"
#include "objects/CommandBars.h"
#include "objects/Session.h"

namespace host
{

ApplicationObject::ApplicationObject(Session& session)
    : AutomationObject{L"Application", kApplicationId}, m_session{session}, m_events{*this, kApplicationEventsId}
{}

std::span<const Member> ApplicationObject::Members() const
{
    using A = ApplicationObject;
    static constexpr Member kMembers[] = {
        {0, L"Name", kGet, Answer<&A::GetName>},
        {2001, L"Presentations", kGet, Answer<&A::GetPresentations>},
        {2002, L"Windows", kGet, Answer<&A::GetWindows>},
        {2004, L"ActiveWindow", kGet, Answer<&A::GetActiveWindow>},
        {2005, L"ActivePresentation", kGet, Answer<&A::GetActivePresentation>},
        {2007, L"CommandBars", kGet, Answer<&A::GetCommandBars>},
        {2013, L"Build", kGet, Answer<&A::GetBuild>},
        {2014, L"Version", kGet, Answer<&A::GetVersion>},
        {2022, L"Run", kMethod, Answer<&A::Run>},
        {2023, L"Activate", kMethod, Answer<&A::Activate>},
        {2031, L"HWND", kGet, Answer<&A::GetWindow>},
        {2035, L"COMAddIns", kGet, Answer<&A::GetComAddIns>},
    };
    return kMembers;
}

void* ApplicationObject::Interface(REFIID id)
{
    return id == IID_IConnectionPointContainer ? static_cast<IConnectionPointContainer*>(&m_events) : nullptr;
}

DocumentObject& ApplicationObject::Active(const wchar_t* what)
{
    if (DocumentObject* active = m_session.Active()) return *active;
    throw AutomationError{kInvalidRequest, std::wstring{L"Application (unknown member) : Invalid request.  There is "
                                                        L"no active "} +
                                               what + L"."};
}

Value ApplicationObject::GetName(const Arguments&) { return Value{L"Microsoft PowerPoint"}; }
Value ApplicationObject::GetVersion(const Arguments&) { return Value{m_session.Settings().version}; }
Value ApplicationObject::GetBuild(const Arguments&) { return Value{m_session.Settings().version + L".4266"}; }

Value ApplicationObject::GetWindow(const Arguments&)
{
    return Value{static_cast<long>(reinterpret_cast<LONG_PTR>(m_session.window))};
}

Value ApplicationObject::GetPresentations(const Arguments&)
{
    return Value{MakeObject<DocumentsObject>(m_session).Get()};
}

Value ApplicationObject::GetWindows(const Arguments&)
{
    std::vector<ComPtr<IDispatch>> windows;
    for (const auto& presentation : m_session.OpenDocuments())
        windows.emplace_back(MakeObject<DocumentWindowObject>(presentation.Get()));
    return Value{MakeObject<ListObject>(L"DocumentWindows", kDocumentWindowsId, std::move(windows)).Get()};
}

Value ApplicationObject::GetActiveWindow(const Arguments&)
{
    return Value{MakeObject<DocumentWindowObject>(&Active(L"window")).Get()};
}

Value ApplicationObject::GetActivePresentation(const Arguments&) { return Value{&Active(L"presentation")}; }
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

DocumentsObject::DocumentsObject(Session& session)
    : AutomationObject{L"Presentations", kPresentationsId}, m_session{session}
{}

std::span<const Member> DocumentsObject::Members() const
{
    using P = DocumentsObject;
    static constexpr Member kMembers[] = {
        {0, L"Item", kEither, Answer<&P::Item>},
        {11, L"Count", kGet, Answer<&P::Count>},
        {2003, L"Add", kMethod, Answer<&P::Add>},
        {2005, L"Open", kMethod, Answer<&P::Open>},
    };
    return kMembers;
}

Value DocumentsObject::Item(const Arguments& arguments)
{
    const Value index = arguments.At(0);
    const auto& open = m_session.OpenDocuments();
    if (index.Type() != VT_BSTR) return Value{open[ItemPosition(index, open.size()) - 1].Get()};
    const std::wstring name = index.Text();
    for (const auto& presentation : open)
        if (::lstrcmpiW(presentation->File().Name().c_str(), name.c_str()) == 0) return Value{presentation.Get()};
    throw AutomationError{E_INVALIDARG, L"Presentations.Item : " + name + L" is not open."};
}

Value DocumentsObject::Count(const Arguments&) { return Value{static_cast<long>(m_session.OpenDocuments().size())}; }

Value DocumentsObject::Add(const Arguments&) { return Value{&m_session.New()}; }

Value DocumentsObject::Open(const Arguments& arguments)
{
    const bool readOnly = arguments.Has(1) && arguments.At(1).Number() != 0;
    return Value{&m_session.Open(arguments.At(0).Text(), readOnly)};
}

} // namespace host
