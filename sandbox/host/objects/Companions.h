// Objects of other programs that an add-in may talk to.
#pragma once

#include "automation/AutomationObject.h"

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace host
{

// The login object of the sibling add-in for Excel.
class LoginObject final : public AutomationObject<IDispatch>
{
public:
    explicit LoginObject(bool loggedIn) : AutomationObject{L"CLogin", kMembers}, m_loggedIn{loggedIn} {}

private:
    static const Member kMembers[1];

    Variant IsLoggedIn(const Arguments& arguments);

    bool m_loggedIn;
};

using MailFields = std::map<std::wstring, std::wstring, std::less<>>;

// What the mail program does with a new item.
enum class MailMood
{
    Willing,
    Refusing, // declines the recipients, as when the user forbids an add-in to see addresses
    Failing   // cannot make the item
};

// The mail program, as far as new mail items need it.
class OutlookObject final : public AutomationObject<IDispatch>
{
public:
    explicit OutlookObject(MailMood mood) : AutomationObject{L"Outlook.Application", kMembers}, m_mood{mood} {}

    // The items that were shown to the user, the last one last.
    [[nodiscard]] const std::vector<MailFields>& Displayed() const { return m_displayed; }
    void Display(const MailFields& fields);
    std::function<void(const MailFields&)> onDisplay;

    // Throws what the mail program reports where its mood is this one.
    void FailWhere(MailMood mood) const;

private:
    static const Member kMembers[1];

    ComPtr<IDispatch> CreateItem(const Arguments& arguments);

    MailMood m_mood;
    std::vector<MailFields> m_displayed;
};

// A new mail with its fields.
class MailItemObject final : public AutomationObject<IDispatch>
{
public:
    explicit MailItemObject(OutlookObject* outlook) : AutomationObject{L"MailItem", kMembers}, m_outlook{outlook} {}

private:
    static const Member kMembers[6];

    ComPtr<OutlookObject> m_outlook;
    MailFields m_fields;
};

} // namespace host
