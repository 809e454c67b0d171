#include "dialogs/frmSaveAssignment.h"

#include "forms/Messages.h"
#include "platform/Procedure.h"
#include "resources/resource.h"
#include "shared/DateText.h"
#include "support/Conversions.h"
#include "webservice/WebService.h"

namespace corvane
{
namespace
{
constexpr int kSaveControls[] = {chkComplete, chkPublish, txtAuthor, txtComments, txtNotes};
constexpr TypeCaptions kTypeCaptions{L"Save as Deliverable or Activity",
                                     L"This will create a new version of the Deliverable or Activity document.",
                                     L"Deliverable or Activity"};
} // namespace

frmSaveAssignment::frmSaveAssignment() noexcept
    : SaveDialog{{.name = L"frmSaveAssignment",
                  .templateId = IDD_frmSaveAssignment,
                  .tree = TreeMode::Assignment,
                  .helpTopic = HelpTopic::SaveAssignment,
                  .errors = kAssignmentErrors,
                  .captions = kTypeCaptions,
                  .controls = kSaveControls,
                  .asksForUser = true}}
{}

void frmSaveAssignment::ShowTerms()
{
    SetText(lblDeliverable, EscapeAmpersands(Terms().deliverable));
    SetText(lblActivity, EscapeAmpersands(Terms().activity));
    SetText(chkComplete, EscapeAmpersands(L"Mark as " + Terms().completed));
}

SaveDialog::SaveStart frmSaveAssignment::BeginSave()
{
    if (m_facts.statusCode != kStatusCompleted) return SaveStart::Go;
    const std::wstring question =
        L"Document has been marked as " + Terms().completed + L". Do you want to upload a new version?";
    return ShowMessage(question, kStyleOkCancel | kStyleInformation) == IDOK ? SaveStart::Go : SaveStart::Hide;
}

std::wstring frmSaveAssignment::Record(const std::wstring& uploadName)
{
    if (Entered().complete) m_facts.statusCode = kStatusCompleted;
    return QueryText(ServerURL, IsActivity() ? Operations::kUploadActivity : Operations::kUploadDeliverable,
                     {Document.Application().Text(L"Name"), ProjectID, IsActivity() ? ActivityID : DeliverableID,
                      uploadName, Entered().author, Entered().comments, Entered().publish ? 1 : 0, m_facts.statusCode,
                      Entered().notes});
}

NotificationFacts frmSaveAssignment::Notified() const
{
    NotificationFacts facts = IsActivity()
                                  ? NotificationOf(NotifiedKind::Activity, ActivityID, Text(txtActivity))
                                  : NotificationOf(NotifiedKind::Deliverable, DeliverableID, Text(txtDeliverable));
    facts.term = IsActivity() ? Terms().activity : Terms().deliverable;
    return facts;
}

void frmSaveAssignment::AddLatestVersion(NotificationFacts& facts) const
{
    const ProcedureScope scope{L"frmSaveAssignment.GetLatestVersionInfo"};
    if (IsActivity()) {
        const XmlDocument versions = QueryXml(ServerURL, Operations::kGetActivityVersions, {ActivityID});
        const XmlNode latest = versions.SelectFirst(L"//prj:version[@vtype='latest']");
        facts.version = latest.Text(L"vnum");
        facts.date = ShownDate(ParseDate(latest.Text(L"cdate"), kVersionDateLayout));
        return;
    }
    const XmlDocument deliverable = QueryXml(ServerURL, Operations::kGetProjectDeliverable, {DeliverableID});
    const XmlNode row = FirstRow(deliverable);
    facts.version = row.Text(L"Version");
    facts.date = ShownDate(ParseDate(row.Text(L"Date"), kVersionTimeLayout));
}

} // namespace corvane
