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
        {0, L"Description", kGet, Answer<&C::GetDescription>},
        {3, L"ProgId", kGet, Answer<&C::GetProgId>},
        {4, L"Guid", kGet, Answer<&C::GetGuid>},
        {6, L"Connect", kGet, Answer<&C::GetConnect>},
        {7, L"Object", kGetPut, Answer<&C::Offered>},
    };
    return kMembers;
}

Variant ComAddInObject::GetDescription(const Arguments&) { return Variant{m_description}; }
Variant ComAddInObject::GetProgId(const Arguments&) { return Variant{m_progId}; }
Variant ComAddInObject::GetConnect(const Arguments&) { return Variant{m_connected}; }

Variant ComAddInObject::GetGuid(const Arguments&)
{
    wchar_t text[64] = L"";
    ::StringFromGUID2(m_classId, text, static_cast<int>(std::size(text)));
    return Variant{text};
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
    static constexpr Member kMembers[] = {
        {0, L"Item", kEither, Answer<&ComAddInsObject::Item>},
        {1, L"Count", kGet, Answer<&ComAddInsObject::Count>},
    };
    return kMembers;
}

Variant ComAddInsObject::Item(const Arguments& arguments)
{
    const Variant index = arguments.At(0);
    const auto& addIns = m_session.AddIns();
    if (index.Type() != VT_BSTR) return Variant{addIns[ItemPosition(index, addIns.size()) - 1].Get()};
    const std::wstring progId = index.Text();
    for (const auto& addIn : addIns)
        if (::lstrcmpiW(addIn->ProgId().c_str(), progId.c_str()) == 0) return Variant{addIn.Get()};
    throw Error{E_INVALIDARG, {}, L"COMAddIns.Item : " + progId + L" is not registered."};
}

Variant ComAddInsObject::Count(const Arguments&) { return Variant{static_cast<long>(m_session.AddIns().size())}; }

} // namespace host
