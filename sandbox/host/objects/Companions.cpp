#include "objects/Companions.h"

namespace host
{
namespace
{

using M = MailItemObject;
using A = const Arguments&;

constexpr long kMailItem = 0; // of OlItemType
constexpr HRESULT kDeclined = static_cast<HRESULT>(0x800A011FL);

} // namespace

const Member LoginObject::kMembers[] = {{1, L"IsLoggedIn", kGetPut, Answer<&LoginObject::IsLoggedIn>}};

Variant LoginObject::IsLoggedIn(const Arguments& arguments) { return ReadOrWrite(arguments, m_loggedIn); }

const Member OutlookObject::kMembers[] = {
    {1, L"CreateItem", kMethod, Answer<&OutlookObject::CreateItem>},
};

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

ComPtr<IDispatch> OutlookObject::CreateItem(const Arguments& arguments)
{
    FailWhere(MailMood::Failing);
    if (arguments.At(0).Number() != kMailItem) throw Error{E_INVALIDARG, {}, L"Only mail items are offered."};
    return MakeObject<MailItemObject>(this);
}

const Member MailItemObject::kMembers[] = {
    {1, L"To", kGetPut, Answer<[](M& mail, A value) {
         mail.m_outlook->FailWhere(MailMood::Refusing);
         return ReadOrWrite(value, mail.m_fields[L"To"]);
     }>},
    {2, L"CC", kGetPut, Answer<[](M& mail, A value) { return ReadOrWrite(value, mail.m_fields[L"CC"]); }>},
    {3, L"Subject", kGetPut, Answer<[](M& mail, A value) { return ReadOrWrite(value, mail.m_fields[L"Subject"]); }>},
    {4, L"Body", kGetPut, Answer<[](M& mail, A value) { return ReadOrWrite(value, mail.m_fields[L"Body"]); }>},
    {5, L"HTMLBody", kGetPut, Answer<[](M& mail, A value) { return ReadOrWrite(value, mail.m_fields[L"HTMLBody"]); }>},
    {6, L"Display", kMethod, Answer<[](M& mail) { mail.m_outlook->Display(mail.m_fields); }>},
};

} // namespace host
