#include "shared/NotificationMail.h"

#include "platform/LateBound.h"
#include "platform/Procedure.h"
#include "webservice/WebService.h"

namespace corvane
{
namespace
{

constexpr const wchar_t* kOutlook = L"Outlook.Application";
constexpr std::int32_t kMailItem = 0; // olMailItem

LateBound Outlook()
{
    LateBound outlook;
    Ignoring([&] { outlook = LateBound::Running(kOutlook); });
    return outlook ? std::move(outlook) : LateBound::Create(kOutlook);
}

} // namespace

std::wstring TeamRecipients(std::int32_t projectId, const std::wstring& server)
{
    std::wstring recipients;
    const XmlDocument members = QueryXml(server, Operations::kGetProjectTeamMembers, {projectId});
    for (const XmlNode& member : members.Select(L"//z:row[@EMailAddress]"))
        recipients += member.Text(L"EMailAddress") + L"; ";
    return recipients;
}

void DisplayNotification(std::int32_t projectId, const std::wstring& server,
                         const std::function<NotificationFacts()>& facts)
{
    const ProcedureScope scope{L"SharedCode.DisplayNotification"};
    const LateBound outlook = Outlook();
    const LateBound item{outlook.Call(L"CreateItem", kMailItem).Object()};
    const std::wstring recipients = TeamRecipients(projectId, server);
    const NotificationFacts notification = facts();
    item.Put(L"To", recipients);
    item.Put(L"Subject", NotificationSubject(notification));
    item.Put(L"Body", NotificationBody(notification));
    item.Call(L"Display");
}

} // namespace corvane
