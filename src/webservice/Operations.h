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
inline constexpr Operation kGetUser{L"GetUser", Method::Get, AnswerForm::Xml};
inline constexpr Operation kGetUserId{L"GetUserID", Method::Get, AnswerForm::Text};
inline constexpr Operation kIsProjectTeamMember{L"IsProjectTeamMember", Method::Post, AnswerForm::Text};
inline constexpr Operation kIsAutoSetPublishCheckbox{L"IsAutoSetPublishCheckbox", Method::Get, AnswerForm::Text};
inline constexpr Operation kMaxFileUploadSize{L"MaxFileUploadSize", Method::Get, AnswerForm::Text};
inline constexpr Operation kGetClasses{L"KRXBLL.APPLICATION.GETCLASSES", Method::Post, AnswerForm::Xml};
inline constexpr Operation kGetProjectDeliverable{L"KRXBLL.APPLICATION.GETPROJECTDELIVERABLE", Method::Get,
                                                  AnswerForm::Xml};
inline constexpr Operation kGetProjectActivity{L"KRXBLL.APPLICATION.GETPROJECTACTIVITY", Method::Get, AnswerForm::Xml};
inline constexpr Operation kGetUserRoles{L"KRXBLL.APPLICATION.GETUSERROLES", Method::Get, AnswerForm::Xml};
inline constexpr Operation kCheckUserManageAccess{L"KRXBLL.APPLICATION.CHECKUSERMANAGEACCESS", Method::Get,
                                                  AnswerForm::Text};
inline constexpr Operation kCheckWorkflowPermission{L"KRXBLL.APPLICATION.CHECKACTIVEWORKFLOWACTIONOWNERPERMISSIONS",
                                                    Method::Get, AnswerForm::Text};
inline constexpr Operation kUploadDeliverable{L"OFFI_API.CDeliverable.UploadAndUpdate", Method::Post, AnswerForm::Text};
inline constexpr Operation kUploadActivity{L"OFFI_API.CActivity.UploadAndUpdate", Method::Post, AnswerForm::Text};
inline constexpr Operation kGetProjectTeamMembers{L"KRXBLL.APPLICATION.GETPROJECTTEAMMEMBERS", Method::Get,
                                                  AnswerForm::Xml};
inline constexpr Operation kUserCanUpdate{L"KRXBLL.APPLICATION.USERCANUPDATE", Method::Get, AnswerForm::Text};
inline constexpr Operation kGetProjectGateDocument{L"KRXBLL.APPLICATION.GETPROJECTGATEDOCUMENT", Method::Get,
                                                   AnswerForm::Xml};
inline constexpr Operation kGetActivityVersions{L"ACTIVITY_API.CACTIVITY.GETMULTIVERSIONDETAILSASXML", Method::Get,
                                                AnswerForm::Xml};
inline constexpr Operation kGetProject{L"KRXBLL.APPLICATION.GetProject", Method::Get, AnswerForm::Xml};
inline constexpr Operation kGetProjectRelatedFile{L"KRXBLL.APPLICATION.GetProjectRelatedFile", Method::Get,
                                                  AnswerForm::Xml};
// The same operation in the letter case that asks for the date of the latest version.
inline constexpr Operation kGetRelatedFileDate{L"KRXBLL.APPLICATION.GETPROJECTRELATEDFILE", Method::Get,
                                               AnswerForm::Xml};
inline constexpr Operation kGetGroups{L"RELATEDFILE_API.CFilter.GetGroups", Method::Get, AnswerForm::Xml};
inline constexpr Operation kCreateRelatedFile{L"KRXBLL.Application.CreateProjectRelatedFile2", Method::Post,
                                              AnswerForm::Text};
inline constexpr Operation kUploadRelatedFile{L"KRXBLL.Application.UploadProjectRelatedFile2", Method::Post,
                                              AnswerForm::Text};
inline constexpr Operation kUploadGateDocument{L"OFFI_API.CGateDocument.UploadAndUpdate", Method::Post,
                                               AnswerForm::Text};
inline constexpr Operation kAssignmentTree{L"OFFI_API.CUser.GetMyAssignmentsAsTree", Method::Get, AnswerForm::Xml};
inline constexpr Operation kRelatedFileTree{L"OFFI_API.CUser.GetMyProjectsRelatedFiles", Method::Get, AnswerForm::Xml};
inline constexpr Operation kGateDocumentTree{L"OFFI_API.Cuser.GetMyGateDocumentsAsTree", Method::Get, AnswerForm::Xml};
inline constexpr Operation kConfigValues{L"OFFI_API.CConfig.GetValues", Method::Get, AnswerForm::Xml};
// Answered in binary.
inline constexpr const wchar_t* kSetIcon = L"KRXBLL.APPLICATION.GetSetIconForOFFI";
// Sent once per process, before the first operation.
inline constexpr const wchar_t* kUpdateUserAccessLog = L"UPDATEUSERACCESSLOG";
} // namespace Operations

} // namespace corvane
