#include "dialogs/frmSaveAssignment.h"

#include "platform/Messages.h"
#include "platform/Procedure.h"
#include "resources/resource.h"
#include "selection/frmSaveTo.h"
#include "support/CCustomNames.h"
#include "support/Conversions.h"
#include "support/Help.h"
#include "webservice/WebService.h"

namespace corvane
{

frmSaveAssignment::frmSaveAssignment() noexcept : SaveDialog{L"frmSaveAssignment", IDD_frmSaveAssignment} {}

std::span<const FormHandler> frmSaveAssignment::Handlers() const
{
    using Self = frmSaveAssignment;
    static const FormHandler kHandlers[] = {
        Handle<Self>(cmdSave, BN_CLICKED, L"cmdSave_Click", &Self::cmdSave_Click),
        Handle<Self>(cmdSaveAndSend, BN_CLICKED, L"cmdSaveAndSend_Click", &Self::cmdSaveAndSend_Click),
        Handle<Self>(cmdCancel, BN_CLICKED, L"cmdCancel_Click", &Self::cmdCancel_Click),
        Handle<Self>(cmdChange, BN_CLICKED, L"cmdChange_Click", &Self::cmdChange_Click),
        Handle<Self>(cmdHelp, BN_CLICKED, L"cmdHelp_Click", &Self::cmdHelp_Click),
        Handle<Self>(txtComments, EN_SETFOCUS, L"txtComments_GotFocus", &Self::MultiLine_GotFocus),
        Handle<Self>(txtComments, EN_KILLFOCUS, L"txtComments_LostFocus", &Self::MultiLine_LostFocus),
        Handle<Self>(txtNotes, EN_SETFOCUS, L"txtNotes_GotFocus", &Self::MultiLine_GotFocus),
        Handle<Self>(txtNotes, EN_KILLFOCUS, L"txtNotes_LostFocus", &Self::MultiLine_LostFocus),
    };
    return kHandlers;
}

std::span<const int> frmSaveAssignment::SaveControls() const noexcept
{
    static constexpr int kControls[] = {chkComplete, chkPublish, txtAuthor, txtComments, txtNotes};
    return kControls;
}

void frmSaveAssignment::LoadCaptions()
{
    m_terms = {CustomName(L"Corvane"), CustomName(L"Deliverable"), CustomName(L"Activity"), CustomName(L"Stage"), {}, {}};
    m_completed = CustomName(L"Completed");
    SetText(lblDeliverable, EscapeAmpersands(m_terms.deliverable));
    SetText(lblActivity, EscapeAmpersands(m_terms.activity));
    SetText(chkComplete, EscapeAmpersands(L"Mark as " + m_completed));
    for (const int textBox : {txtAuthor, txtComments, txtNotes})
        SelectAllOnCtrlA(textBox);
}

void frmSaveAssignment::LoadUser()
{
    m_facts.userId = ToLongSafe(QueryText(ServerURL, Operations::kGetUserId, {}));
    m_facts.kind = DeliverableID > 0 ? TargetKind::Deliverable : TargetKind::Activity;
}

DocumentBinding frmSaveAssignment::Binding() const
{
    return {.server = ServerURL, .projectId = ProjectID, .deliverableId = DeliverableID, .activityId = ActivityID};
}

bool frmSaveAssignment::ConfirmSave()
{
    if (m_facts.statusCode != kStatusCompleted) return true;
    const std::wstring question =
        L"Document has been marked as " + m_completed + L". Do you want to upload a new version?";
    return ShowMessage(question, kStyleOkCancel | kStyleInformation) == IDOK;
}

std::wstring frmSaveAssignment::Record(const std::wstring& uploadName)
{
    if (IsChecked(chkComplete)) m_facts.statusCode = kStatusCompleted;
    const bool isActivity = ActivityID >= 1;
    return QueryText(ServerURL, isActivity ? Operations::kUploadActivity : Operations::kUploadDeliverable,
                     {oApplication.Text(L"Name"), ProjectID, isActivity ? ActivityID : DeliverableID, uploadName,
                      Trim(Text(txtAuthor)), Trim(Text(txtComments)), IsChecked(chkPublish) ? 1 : 0,
                      m_facts.statusCode, Trim(Text(txtNotes))});
}

bool frmSaveAssignment::ShowSaveError(const Error& error)
{
    if (error.Number() == kAutomationDeclined) return true;
    const auto refusal = RefusalOfError(error.Number());
    if (refusal) ShowMessage(RefusalMessage(*refusal, m_terms), kStyleExclamation);
    return refusal.has_value();
}

void frmSaveAssignment::cmdChange_Click()
{
    frmSaveTo tree;
    tree.ServerURL = ServerURL;
    tree.DeliverableID = DeliverableID;
    tree.ActivityID = ActivityID;
    tree.ShowModal();
    tree.Unload();
    if (tree.ServerURL == ServerURL && tree.DeliverableID == DeliverableID && tree.ActivityID == ActivityID) return;
    ServerURL = tree.ServerURL;
    ProjectID = tree.ProjectID;
    DeliverableID = tree.DeliverableID;
    ActivityID = tree.ActivityID;
    LoadTarget();
}

void frmSaveAssignment::cmdHelp_Click() { ShowHelpTopic(Window(), HelpTopic::SaveAssignment); }

} // namespace corvane
