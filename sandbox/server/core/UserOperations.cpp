#include "core/Icons.h"
#include "core/Operations.h"
#include "core/Rules.h"

#include <algorithm>

namespace server
{

namespace
{

Answer GetUser(Service& service, const Parameters&)
{
    const auto& user = service.CurrentUser();
    return RowsetAnswer({{{"UserID", std::to_string(user.id)},
                          {"Name", user.name},
                          {"EMailAddress", user.email},
                          {"RoleList", user.rights}}});
}

Answer IsProjectTeamMember(Service& service, const Parameters& parameters)
{
    const auto& project = service.RequireProject(parameters.Number(1));
    return TextAnswer(TruthText(Contains(project.team, service.CurrentUser().id)));
}

Answer GetUserRoles(Service& service, const Parameters& parameters)
{
    const auto& users = service.Shown().users;
    const auto user = std::ranges::find(users, parameters.Number(1), &User::id);
    std::vector<Row> rows;
    if (user != users.end())
        for (const auto& role : user->roles)
            rows.push_back({{"RoleID", role}});
    return RowsetAnswer(rows);
}

Answer CheckUserManageAccess(Service& service, const Parameters& parameters)
{
    const auto& project = service.RequireProject(parameters.Number(1));
    return TextAnswer(TruthText(Contains(project.managers, service.CurrentUser().id)));
}

Answer GetClasses(Service& service, const Parameters&)
{
    std::vector<Row> rows;
    for (const auto& item : service.Shown().classes)
        rows.push_back({{"DisplayName", item.name}, {"ClassID", std::to_string(item.id)}});
    return RowsetAnswer(rows);
}

Answer GetTeamMembers(Service& service, const Parameters& parameters)
{
    const auto& project = service.RequireProject(parameters.Number(1));
    std::vector<Row> rows;
    for (const auto& user : service.Shown().users) {
        if (!Contains(project.team, user.id)) continue;
        auto& row = rows.emplace_back(Row{{"UserID", std::to_string(user.id)}, {"Name", user.name}});
        if (!user.email.empty()) row.emplace_back("EMailAddress", user.email);
    }
    return RowsetAnswer(rows);
}

Answer GetValues(Service& service, const Parameters&)
{
    std::vector<Row> rows;
    for (const auto& [token, value] : service.GetSettings().configuration)
        rows.push_back({{"TokenName", token}, {"Value", value}});
    return RowsetAnswer(rows);
}

Answer GetSetIcon(Service&, const Parameters& parameters)
{
    auto picture = SetIcon(parameters.Text(1), parameters.Text(2));
    if (!picture)
        throw ServiceError{ErrorNumber::NotFound, parameters.Operation(),
                           "There is no icon '" + parameters.Text(2) + "' in set '" + parameters.Text(1) + "'."};
    return {.contentType = "image/gif", .body = std::move(*picture)};
}

// The value of one of the server's switches; the parameter repeats the operation's name.
std::string SwitchValue(const Settings& settings, std::string_view name)
{
    return name == "MaxFileUploadSize" ? std::to_string(settings.maxFileUploadSize)
                                       : TruthText(settings.publishByDefault);
}

Answer GetSwitch(Service& service, const Parameters& parameters)
{
    const auto& name = parameters.Text(1);
    if (name != "MaxFileUploadSize" && name != "AutomaticallySetPublishCheckbox")
        throw ServiceError{ErrorNumber::InvalidRequest, parameters.Operation(), "Unknown setting '" + name + "'."};
    return TextAnswer(SwitchValue(service.GetSettings(), name));
}

} // namespace

void AddUserOperations(OperationTable& table)
{
    table["UPDATEUSERACCESSLOG"] = {0, [](Service&, const Parameters&) { return TextAnswer("OK"); }};
    table["GetUser"] = {0, GetUser};
    table["GetUserID"] = {
        0, [](Service& service, const Parameters&) { return TextAnswer(std::to_string(service.CurrentUser().id)); }};
    table["IsProjectTeamMember"] = {1, IsProjectTeamMember};
    table["IsAutoSetPublishCheckbox"] = {1, GetSwitch};
    table["MaxFileUploadSize"] = {1, GetSwitch};
    table["KRXBLL.APPLICATION.GETCLASSES"] = {2, GetClasses};
    table["KRXBLL.APPLICATION.GETPROJECTTEAMMEMBERS"] = {1, GetTeamMembers};
    table["KRXBLL.APPLICATION.GETUSERROLES"] = {1, GetUserRoles};
    table["KRXBLL.APPLICATION.CHECKUSERMANAGEACCESS"] = {1, CheckUserManageAccess};
    table["KRXBLL.APPLICATION.GetSetIconForOFFI"] = {2, GetSetIcon};
    table["OFFI_API.CConfig.GetValues"] = {0, GetValues};
}

} // namespace server
