#include "objects/AddInObjects.h"

#include "objects/Collections.h"
#include "objects/Session.h"

namespace host
{

ComAddInObject::ComAddInObject(std::wstring progId, std::wstring description)
    : AutomationObject{L"COMAddIn", kMembers, kComAddInId}, m_progId{std::move(progId)}, m_description{
                                                                                             std::move(description)}
{}

const Member ComAddInObject::kMembers[] = {
    {0, L"Description", kGet, Answer<[](const ComAddInObject& addIn) { return addIn.m_description; }>},
    {3, L"ProgId", kGet, Answer<&ComAddInObject::ProgId>},
    {4, L"Guid", kGet, Answer<[](const ComAddInObject& addIn) { return corvane::GuidText(addIn.m_classId); }>},
    {6, L"Connect", kGetPut, Answer<&ComAddInObject::Connect>},
    {7, L"Object", kGetPut, Answer<&ComAddInObject::Offered>},
};

bool ComAddInObject::Connect(const Arguments& arguments)
{
    if (arguments.IsPut() && !arguments.At(0).Boolean() && onDisconnect) onDisconnect();
    return m_connected;
}

Variant ComAddInObject::Offered(const Arguments& arguments)
{
    if (!arguments.IsPut()) return m_offered;
    m_offered = arguments.At(0).As(VT_DISPATCH).Object();
    return {};
}

ComAddInsObject::ComAddInsObject(Session& session)
    : AutomationObject{L"COMAddIns", kMembers, kComAddInsId}, m_session{session}
{}

const Member ComAddInsObject::kMembers[] = {
    {0, L"Item", kEither, Answer<[](const ComAddInsObject& own, const Arguments& arguments) {
         return ItemOf(own.m_session.AddIns(), arguments.At(0), [](const auto& one) { return one->ProgId(); });
     }>},
    {1, L"Count", kGet,
     Answer<[](const ComAddInsObject& own) { return static_cast<long>(own.m_session.AddIns().size()); }>},
};

const Member RibbonUiObject::kMembers[] = {{1, L"Invalidate", kMethod, Answer<&RibbonUiObject::Ask>}};

RibbonControlObject::RibbonControlObject(std::wstring id, std::wstring tag, ComPtr<IDispatch> context)
    : AutomationObject{L"IRibbonControl", kMembers}, m_id{std::move(id)}, m_tag{std::move(tag)}, m_context{
                                                                                                     std::move(context)}
{}

const Member RibbonControlObject::kMembers[] = {
    {1, L"Id", kGet, Answer<[](const RibbonControlObject& own) { return own.m_id; }>},
    {2, L"Context", kGet, Answer<[](const RibbonControlObject& own) { return own.m_context; }>},
    {3, L"Tag", kGet, Answer<[](const RibbonControlObject& own) { return own.m_tag; }>},
};

STDMETHODIMP RibbonControlObject::get_Id(BSTR* id) { return corvane::HandOut(m_id, id); }
STDMETHODIMP RibbonControlObject::get_Tag(BSTR* tag) { return corvane::HandOut(m_tag, tag); }
STDMETHODIMP RibbonControlObject::get_Context(IDispatch** context) { return m_context.CopyTo(context); }

} // namespace host
