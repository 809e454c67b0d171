#include "objects/ComAddIn.h"

#include "automation/OfficeInterfaces.h"
#include "objects/Collections.h"
#include "objects/Session.h"

namespace host
{

ComAddInObject::ComAddInObject(std::wstring progId, std::wstring description)
    : AutomationObject{L"COMAddIn", kComAddInId}, m_progId{std::move(progId)}, m_description{std::move(description)}
{}

std::span<const Member> ComAddInObject::Members() const
{
    using C = ComAddInObject;
    static constexpr Member kMembers[] = {
        {0, L"Description", kGet, Answer<[](const C& addIn) { return addIn.m_description; }>},
        {3, L"ProgId", kGet, Answer<&C::ProgId>},
        {4, L"Guid", kGet, Answer<[](const C& addIn) { return corvane::GuidText(addIn.m_classId); }>},
        {6, L"Connect", kGet, Answer<[](const C& addIn) { return addIn.m_connected; }>},
        {7, L"Object", kGetPut, Answer<&C::Offered>},
    };
    return kMembers;
}

Variant ComAddInObject::Offered(const Arguments& arguments)
{
    if (!arguments.IsPut()) return m_offered;
    m_offered = arguments.At(0).As(VT_DISPATCH).Object();
    return {};
}

ComAddInsObject::ComAddInsObject(Session& session) : AutomationObject{L"COMAddIns", kComAddInsId}, m_session{session} {}

std::span<const Member> ComAddInsObject::Members() const
{
    using C = ComAddInsObject;
    static constexpr Member kMembers[] = {
        {0, L"Item", kEither, Answer<[](const C& own, const Arguments& arguments) {
             return ItemOf(own.m_session.AddIns(), arguments.At(0), [](const auto& one) { return one->ProgId(); });
         }>},
        {1, L"Count", kGet, Answer<[](const C& own) { return static_cast<long>(own.m_session.AddIns().size()); }>},
    };
    return kMembers;
}

} // namespace host
