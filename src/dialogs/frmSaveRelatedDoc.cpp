#include "dialogs/frmSaveRelatedDoc.h"

#include "forms/FormList.h"
#include "forms/Messages.h"
#include "platform/Procedure.h"
#include "resources/resource.h"
#include "shared/DateText.h"
#include "shared/DocumentProperties.h"
#include "support/Conversions.h"
#include "webservice/WebService.h"

namespace corvane
{
namespace
{
constexpr int kSaveControls[] = {txtName, txtDescription, txtAuthor, cboGroup, chkPublish};

constexpr const wchar_t* kUploadRole = L"RU";
constexpr const wchar_t* kDefaultGroup = L"[default]"; // in lower case

// A text with the line breaks that a text box shows.
std::wstring InLines(const std::wstring& text) { return ReplaceAll(ReplaceAll(text, L"\r\n", L"\n"), L"\n", L"\r\n"); }

} // namespace

frmSaveRelatedDoc::frmSaveRelatedDoc() noexcept
    : SaveDialog{{.name = L"frmSaveRelatedDoc",
                  .templateId = IDD_frmSaveRelatedDoc,
                  .tree = TreeMode::RelatedDocument,
                  .helpTopic = HelpTopic::SaveRelatedDocument,
                  .errors = kRelatedDocumentErrors,
                  .captions = {},
                  .controls = kSaveControls,
                  .asksForUser = false}}
{}

SaveDialog::TargetState frmSaveRelatedDoc::LoadTarget()
{
    const ProcedureScope scope{L"frmSaveRelatedDoc.LoadRelatedDocument"};
    const XmlDocument user = QueryXml(ServerURL, Operations::kGetUser, {});
    if (FirstRow(user).Text(L"RoleList").find(kUploadRole) == std::wstring::npos) {
        Tell(L"You do not have rights to upload a related document to this project.", kStyleCritical);
        return TargetState::Refused;
    }
    const bool open = IsNew() ? LoadNewDocument() : LoadExistingDocument();
    return open ? TargetState::Allowed : Refuse(Refusal::RelatedProjectClosed);
}

bool frmSaveRelatedDoc::LoadNewDocument()
{
    SetText(chkPublish, L"Publish");
    const XmlDocument answer = QueryXml(ServerURL, Operations::kGetProject, {ProjectID});
    const XmlNode project = FirstRow(answer);
    if (ToBooleanSafe(project.Text(L"Closed"))) return false;
    ShowProject(project.Text(L"ProjectName"));
    SetText(txtName, Document.Title());
    m_description.clear();
    SetText(txtDescription, Document.BodyStart());
    SetText(txtAuthor, AuthorOfDocument());
    Check(chkPublish, AutomaticallySetPublishCheckbox);
    FillGroups();
    const auto chosen = Groups().Find([](const std::wstring& group) { return ToLower(group) == kDefaultGroup; });
    Groups().Select(chosen.value_or(0));
    return true;
}

bool frmSaveRelatedDoc::LoadExistingDocument()
{
    SetText(chkPublish, L"Published");
    const XmlDocument answer = QueryXml(ServerURL, Operations::kGetProjectRelatedFile, {RelatedDocID});
    const XmlNode document = FirstRow(answer);
    if (ToBooleanSafe(document.Text(L"ProjectClosed"))) return false;
    ShowProject(document.Text(L"ProjectName"));
    SetText(txtName, document.Text(L"Name"));
    m_description = document.Text(L"Description");
    SetText(txtDescription, InLines(m_description));
    SetText(txtAuthor, document.Text(L"Author"));
    Check(chkPublish, ToBooleanSafe(document.Text(L"Published")));
    FillGroups();
    SelectGroup(Trim(document.Text(L"GroupName")));
    return true;
}

FormList frmSaveRelatedDoc::Groups() const noexcept { return FormList{Control(cboGroup)}; }

void frmSaveRelatedDoc::FillGroups()
{
    Groups().Clear();
    const XmlDocument groups = QueryXml(ServerURL, Operations::kGetGroups, {ProjectID});
    for (const XmlNode& group : groups.Select(L"//fg:group"))
        Groups().Add(group.Text(L"name"));
}

void frmSaveRelatedDoc::SelectGroup(const std::wstring& group)
{
    auto position = Groups().Find([&](const std::wstring& offered) { return offered == group; });
    // A category that the project does not offer stays the document's own.
    if (!position && !group.empty()) position = Groups().Add(group);
    if (position) Groups().Select(*position);
}

std::wstring frmSaveRelatedDoc::AuthorOfDocument() const
{
    std::wstring author = Document.Author();
    return author.empty() ? FirstRow(QueryXml(ServerURL, Operations::kGetUser, {})).Text(L"Name") : author;
}

SaveDialog::SaveStart frmSaveRelatedDoc::BeginSave()
{
    if (MaySave()) return SaveStart::Go;
    SetFocusTo(txtName);
    return SaveStart::StayOpen;
}

bool frmSaveRelatedDoc::MaySave()
{
    if (Entered().name.empty()) ShowMessage(L"Name is required.", kStyleCritical);
    return !Entered().name.empty();
}

// What the server told stays as it was when nothing of it was changed.
std::wstring frmSaveRelatedDoc::Description() const
{
    return Entered().description == Trim(InLines(m_description)) ? Trim(m_description) : Entered().description;
}

std::wstring frmSaveRelatedDoc::Record(const std::wstring& uploadName)
{
    return QueryText(ServerURL, IsNew() ? Operations::kCreateRelatedFile : Operations::kUploadRelatedFile,
                     {IsNew() ? ProjectID : RelatedDocID, uploadName, Entered().name, Entered().author,
                      Entered().category, Description(), Entered().publish ? 1 : 0});
}

void frmSaveRelatedDoc::AfterRecord(const std::wstring& reply)
{
    if (!IsNew() || reply.empty()) return;
    // The file is to carry the id that the server gave the new document.
    RelatedDocID = ToLongSafe(reply);
    if (!Document.IsActive()) {
        ShowMessage(L"The document was saved. But another one is active now, so the number of the new related document "
                    L"was not written into it.",
                    kStyleExclamation);
        return;
    }
    BindDocument(Document, {target, ServerURL});
    Document.SaveAgain();
}

NotificationFacts frmSaveRelatedDoc::Notified() const
{
    NotificationFacts facts = NotificationOf(NotifiedKind::RelatedDocument, RelatedDocID, Entered().name);
    facts.term = L"Related Document";
    facts.author = Entered().author;
    return facts;
}

void frmSaveRelatedDoc::AddLatestVersion(NotificationFacts& facts) const
{
    const ProcedureScope scope{L"frmSaveRelatedDoc.GetRelatedVersionInfo"};
    const XmlDocument answer = QueryXml(ServerURL, Operations::kGetRelatedFileDate, {RelatedDocID});
    facts.date = ShownDate(ParseDate(FirstRow(answer).Text(L"Date"), kVersionTimeLayout));
}

} // namespace corvane
