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

Value LoginObject::IsLoggedIn(const Arguments& arguments)
{
    if (arguments.IsPut()) m_loggedIn = arguments.At(0).Boolean();
    return Value::OfBoolean(m_loggedIn);
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

Value OutlookObject::GetName(const Arguments&) { return Value{L"Outlook"}; }
Value OutlookObject::GetVersion(const Arguments&) { return Value{L"16.0.0.4266"}; }

void OutlookObject::Display(const MailFields& fields)
{
    m_displayed.push_back(fields);
    if (onDisplay) onDisplay(fields);
}

void OutlookObject::FailWhere(MailMood mood) const
{
    if (m_mood != mood) return;
    if (mood == MailMood::Failing) throw AutomationError{E_FAIL, L"The mail store cannot be opened."};
    throw AutomationError{kDeclined, L"Application-defined or object-defined error"};
}

Value OutlookObject::CreateItem(const Arguments& arguments)
{
    FailWhere(MailMood::Failing);
    if (arguments.At(0).Number() != kMailItem) throw AutomationError{E_INVALIDARG, L"Only mail items are offered."};
    return Value{MakeObject<MailItemObject>(this).Get()};
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

Value MailItemObject::To(const Arguments& arguments)
{
    m_outlook->FailWhere(MailMood::Refusing);
    return Field(L"To", arguments);
}

Value MailItemObject::Field(const wchar_t* name, const Arguments& arguments)
{
    if (!arguments.IsPut()) return Value{m_fields[name]};
    m_fields[name] = arguments.At(0).Text();
    return {};
}

Value MailItemObject::Display(const Arguments&)
{
    m_outlook->Display(m_fields);
    return {};
}

} // namespace host
