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

void DisplayNotification(NotificationFacts facts, const std::function<void(NotificationFacts&)>& addLatestVersion)
{
    const ProcedureScope scope{L"SharedCode.DisplayNotification"};
    const LateBound outlook = Outlook();
    const LateBound item{outlook.Call(L"CreateItem", kMailItem).Object()};
    const std::wstring recipients = TeamRecipients(facts.projectId, facts.server);
    addLatestVersion(facts);
    item.Put(L"To", recipients);
    item.Put(L"Subject", NotificationSubject(facts));
    item.Put(L"Body", NotificationBody(facts));
    // A program in the background may not come to the front by itself.
    ::CoAllowSetForegroundWindow(item.Get(), nullptr);
    item.Call(L"Display");
}

} // namespace corvane
