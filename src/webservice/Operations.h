// The operations of the server, as its protocol names them: the letter case of every name is part of the protocol.
#pragma once

namespace corvane
{

enum class Method
{
    Get,
    Post
};

enum class AnswerForm
{
    Text,
    Xml
};

// An operation, how it is sent and what it answers.
struct Operation
{
    const wchar_t* name;
    Method method;
    AnswerForm answer;
};

// The page that answers every operation.
inline constexpr const wchar_t* kServicePage = L"offi.asp";

namespace Operations
{
using enum Method;
using enum AnswerForm;

inline constexpr Operation kGetUser{L"GetUser", Get, Xml};
inline constexpr Operation kGetUserId{L"GetUserID", Get, Text};
inline constexpr Operation kIsProjectTeamMember{L"IsProjectTeamMember", Post, Text};
inline constexpr Operation kIsAutoSetPublishCheckbox{L"IsAutoSetPublishCheckbox", Get, Text};
inline constexpr Operation kMaxFileUploadSize{L"MaxFileUploadSize", Get, Text};
inline constexpr Operation kGetClasses{L"KRXBLL.APPLICATION.GETCLASSES", Post, Xml};
inline constexpr Operation kGetProjectDeliverable{L"KRXBLL.APPLICATION.GETPROJECTDELIVERABLE", Get, Xml};
inline constexpr Operation kGetProjectActivity{L"KRXBLL.APPLICATION.GETPROJECTACTIVITY", Get, Xml};
inline constexpr Operation kGetUserRoles{L"KRXBLL.APPLICATION.GETUSERROLES", Get, Xml};
inline constexpr Operation kCheckUserManageAccess{L"KRXBLL.APPLICATION.CHECKUSERMANAGEACCESS", Get, Text};
inline constexpr Operation kCheckWorkflowPermission{L"KRXBLL.APPLICATION.CHECKACTIVEWORKFLOWACTIONOWNERPERMISSIONS",
                                                    Get, Text};
inline constexpr Operation kUploadDeliverable{L"OFFI_API.CDeliverable.UploadAndUpdate", Post, Text};
inline constexpr Operation kUploadActivity{L"OFFI_API.CActivity.UploadAndUpdate", Post, Text};
inline constexpr Operation kGetProjectTeamMembers{L"KRXBLL.APPLICATION.GETPROJECTTEAMMEMBERS", Get, Xml};
inline constexpr Operation kUserCanUpdate{L"KRXBLL.APPLICATION.USERCANUPDATE", Get, Text};
inline constexpr Operation kGetProjectGateDocument{L"KRXBLL.APPLICATION.GETPROJECTGATEDOCUMENT", Get, Xml};
inline constexpr Operation kGetActivityVersions{L"ACTIVITY_API.CACTIVITY.GETMULTIVERSIONDETAILSASXML", Get, Xml};
inline constexpr Operation kGetProject{L"KRXBLL.APPLICATION.GetProject", Get, Xml};
inline constexpr Operation kGetProjectRelatedFile{L"KRXBLL.APPLICATION.GetProjectRelatedFile", Get, Xml};
// The same operation in the letter case that asks for the date of the latest version.
inline constexpr Operation kGetRelatedFileDate{L"KRXBLL.APPLICATION.GETPROJECTRELATEDFILE", Get, Xml};
inline constexpr Operation kGetGroups{L"RELATEDFILE_API.CFilter.GetGroups", Get, Xml};
inline constexpr Operation kCreateRelatedFile{L"KRXBLL.Application.CreateProjectRelatedFile2", Post, Text};
inline constexpr Operation kUploadRelatedFile{L"KRXBLL.Application.UploadProjectRelatedFile2", Post, Text};
inline constexpr Operation kUploadGateDocument{L"OFFI_API.CGateDocument.UploadAndUpdate", Post, Text};
inline constexpr Operation kAssignmentTree{L"OFFI_API.CUser.GetMyAssignmentsAsTree", Get, Xml};
inline constexpr Operation kRelatedFileTree{L"OFFI_API.CUser.GetMyProjectsRelatedFiles", Get, Xml};
inline constexpr Operation kGateDocumentTree{L"OFFI_API.Cuser.GetMyGateDocumentsAsTree", Get, Xml};
inline constexpr Operation kConfigValues{L"OFFI_API.CConfig.GetValues", Get, Xml};
// Answered in binary.
inline constexpr const wchar_t* kSetIcon = L"KRXBLL.APPLICATION.GetSetIconForOFFI";
// Sent once per process, before the first operation.
inline constexpr const wchar_t* kUpdateUserAccessLog = L"UPDATEUSERACCESSLOG";
} // namespace Operations

} // namespace corvane
