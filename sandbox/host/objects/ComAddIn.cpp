#include "objects/ComAddIn.h"

#include "automation/OfficeInterfaces.h"
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
    {6, L"Connect", kGet, Answer<[](const ComAddInObject& addIn) { return addIn.m_connected; }>},
    {7, L"Object", kGetPut, Answer<&ComAddInObject::Offered>},
};

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

} // namespace host
