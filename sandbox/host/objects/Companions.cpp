#include "objects/Companions.h"

namespace host
{
namespace
{

constexpr long kMailItem = 0; // of OlItemType
constexpr HRESULT kDeclined = static_cast<HRESULT>(0x800A011FL);

} // namespace

std::span<const Member> LoginObject::Members() const
{
    static constexpr Member kMembers[] = {{1, L"IsLoggedIn", kGetPut, Answer<&LoginObject::IsLoggedIn>}};
    return kMembers;
}

Variant LoginObject::IsLoggedIn(const Arguments& arguments)
{
    if (arguments.IsPut()) m_loggedIn = arguments.At(0).Boolean();
    return Variant{m_loggedIn};
}

std::span<const Member> OutlookObject::Members() const
{
    static constexpr Member kMembers[] = {
        {1, L"Name", kGet, Answer<&OutlookObject::GetName>},
        {2, L"Version", kGet, Answer<&OutlookObject::GetVersion>},
        {3, L"CreateItem", kMethod, Answer<&OutlookObject::CreateItem>},
    };
    return kMembers;
}

Variant OutlookObject::GetName(const Arguments&) { return Variant{L"Outlook"}; }
Variant OutlookObject::GetVersion(const Arguments&) { return Variant{L"16.0.0.4266"}; }

void OutlookObject::Display(const MailFields& fields)
{
    m_displayed.push_back(fields);
    if (onDisplay) onDisplay(fields);
}

void OutlookObject::FailWhere(MailMood mood) const
{
    if (m_mood != mood) return;
    if (mood == MailMood::Failing) throw Error{E_FAIL, {}, L"The mail store cannot be opened."};
    throw Error{kDeclined, {}, L"Application-defined or object-defined error"};
}

Variant OutlookObject::CreateItem(const Arguments& arguments)
{
    FailWhere(MailMood::Failing);
    if (arguments.At(0).Number() != kMailItem) throw Error{E_INVALIDARG, {}, L"Only mail items are offered."};
    return Variant{MakeObject<MailItemObject>(this).Get()};
}

std::span<const Member> MailItemObject::Members() const
{
    using M = MailItemObject;
    static constexpr Member kMembers[] = {
        {1, L"To", kGetPut, Answer<&M::To>},
        {2, L"CC", kGetPut, Answer<&M::Copy>},
        {3, L"Subject", kGetPut, Answer<&M::Subject>},
        {4, L"Body", kGetPut, Answer<&M::Body>},
        {5, L"HTMLBody", kGetPut, Answer<&M::HtmlBody>},
        {6, L"Display", kMethod, Answer<&M::Display>},
    };
    return kMembers;
}

Variant MailItemObject::To(const Arguments& arguments)
{
    m_outlook->FailWhere(MailMood::Refusing);
    return Field(L"To", arguments);
}

Variant MailItemObject::Field(const wchar_t* name, const Arguments& arguments)
{
    if (!arguments.IsPut()) return Variant{m_fields[name]};
    m_fields[name] = arguments.At(0).Text();
    return {};
}

Variant MailItemObject::Display(const Arguments&)
{
    m_outlook->Display(m_fields);
    return {};
}

} // namespace host
