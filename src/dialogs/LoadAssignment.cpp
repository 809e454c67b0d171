// How the deliverable or activity dialog fetches its target and decides whether it may be uploaded.
#include "dialogs/frmSaveAssignment.h"

#include "forms/FormLayout.h"
#include "platform/Procedure.h"
#include "resources/resource.h"
#include "support/Conversions.h"
#include "webservice/WebService.h"

#include <algorithm>

namespace corvane
{
namespace
{

// Object kinds of the workflow permission query.
constexpr std::int32_t kDeliverableObject = 1;
constexpr std::int32_t kActivityObject = 2;

constexpr std::int32_t kUnroutedType = 1;
constexpr int kHeightWithoutActivity = 7875; // twips

std::int32_t Id(const XmlNode& row, const wchar_t* attribute) { return ToLongSafe(row.Text(attribute)); }
bool Flag(const XmlNode& row, const wchar_t* attribute) { return ToBooleanSafe(row.Text(attribute)); }

} // namespace

void frmSaveAssignment::Form_Initialize()
{
    SaveDialog::Form_Initialize();
    m_activityRowShown = true; // as the template has it, also where the window is made anew
    if (DeliverableID > 0 && !IsActivity() && !ServerURL.empty()) ShowActivityRow(false);
}

SaveDialog::TargetState frmSaveAssignment::LoadTarget()
{
    const ProcedureScope scope{L"frmSaveAssignment.LoadAssignment"};
    m_facts = {};
    m_completionAllowed = true;
    Terms().ownerName.clear();
    Terms().targetType = TargetTypeName(target, Terms());
    if (ProjectID >= 1)
        m_facts.isTeamMember = ToBooleanSafe(QueryText(ServerURL, Operations::kIsProjectTeamMember, {ProjectID}));
    ShowTypeCaptions();
    SetText(AssignmentDetailsFrame, EscapeAmpersands(Terms().targetType + L" details"));
    m_facts.userId = UserId();
    m_userName = FirstRow(QueryXml(ServerURL, Operations::kGetUser, {})).Text(L"Name");
    if (IsActivity())
        LoadActivity();
    else
        LoadDeliverable();
    return Decide();
}

std::int32_t frmSaveAssignment::WorkflowPermission(std::int32_t objectKind, std::int32_t objectId) const
{
    return ToLongSafe(QueryText(ServerURL, Operations::kCheckWorkflowPermission, {objectKind, objectId}));
}

void frmSaveAssignment::LoadDeliverable()
{
    const XmlDocument answer = QueryXml(ServerURL, Operations::kGetProjectDeliverable, {DeliverableID});
    const XmlNode row = FirstRow(answer);
    m_facts.kind = TargetKind::Deliverable;
    ShowProject(row.Text(L"ProjectName"));
    SetText(txtDeliverable, row.Text(L"DeliverableName"));
    DeliverableID = Id(row, L"DeliverableID");
    m_statusNote = row.Text(L"StatusComment");
    m_facts.statusCode = Id(row, L"StatusCode");
    m_facts.ownerId = Id(row, L"OwnerID");
    if (m_facts.ownerId != 0) Terms().ownerName = row.Text(L"OwnerName");
    m_facts.teamLeaderId = Id(row, L"TeamLeaderID");
    m_facts.workflowState = Id(row, L"WorkflowState");
    TakeSharedFacts(row);
    if (m_facts.routingTypeId != kUnroutedType) m_completionAllowed = false;
    AllowCompletion(row, m_facts.workflowState);
    ShowActivityRow(false);
    m_facts.firstPermission = WorkflowPermission(kDeliverableObject, DeliverableID);
}

void frmSaveAssignment::LoadActivity()
{
    const XmlDocument answer = QueryXml(ServerURL, Operations::kGetProjectActivity, {ActivityID});
    const XmlNode row = FirstRow(answer);
    m_facts.kind = TargetKind::Activity;
    ShowProject(row.Text(L"ProjectName"));
    SetText(txtDeliverable, row.Text(L"DeliverableName"));
    SetText(txtActivity, row.Text(L"ActivityName"));
    m_statusNote = row.Text(L"ActivityStatusNote");
    m_facts.statusCode = Id(row, L"ActivityStatusCode");
    m_facts.ownerId = Id(row, L"ActivityOwnerID");
    if (m_facts.ownerId != 0) Terms().ownerName = row.Text(L"ActivityOwner");
    m_facts.teamLeaderId = Id(row, L"ProjectTeamLeaderID");
    m_parentDeliverableId = Id(row, L"DeliverableID");
    m_facts.workflowState = Id(row, L"DeliverableWorkflowState");
    m_facts.activityWorkflowState = Id(row, L"WorkflowState");
    m_facts.requiresActivitiesComplete = Flag(row, L"WorkflowRequireActivitiesComplete");
    TakeSharedFacts(row);
    AllowCompletion(row, m_facts.activityWorkflowState);
    ShowActivityRow(true);
    m_facts.firstPermission = WorkflowPermission(kDeliverableObject, m_parentDeliverableId);
    m_facts.secondPermission = WorkflowPermission(kActivityObject, ActivityID);
}

void frmSaveAssignment::TakeSharedFacts(const XmlNode& row)
{
    m_facts.closed = Flag(row, L"Closed");
    m_facts.stageLocked = Flag(row, L"StageLocked");
    m_facts.isWebDoc = Flag(row, L"IsWebDoc");
    m_facts.routingTypeId = Id(row, L"RoutingTypeID");
    m_facts.authenticationRequired = Flag(row, L"AuthenticationRequired");
    m_facts.enRoute = Flag(row, L"EnRoute");
}

void frmSaveAssignment::AllowCompletion(const XmlNode& row, std::int32_t ownWorkflowState)
{
    if (Flag(row, L"HasWorkflow") || ownWorkflowState == kWorkflowRunning) m_completionAllowed = false;
}

SaveDialog::TargetState frmSaveAssignment::Decide()
{
    for (;;) {
        const UploadDecision decision = DecideUpload(m_facts);
        switch (decision.verdict) {
        case Verdict::NeedsParentOwner:
            m_facts.parentOwnerId = ParentOwner();
            continue;
        case Verdict::NeedsManageAccess:
            m_facts.hasManageAccess = HasManageAccess();
            continue;
        case Verdict::Refused:
            return Refuse(decision.refusal);
        case Verdict::Allowed:
            return Allow();
        }
    }
}

std::int32_t frmSaveAssignment::ParentOwner() const
{
    return Id(FirstRow(QueryXml(ServerURL, Operations::kGetProjectDeliverable, {m_parentDeliverableId})), L"OwnerID");
}

bool frmSaveAssignment::HasManageAccess() const
{
    const XmlDocument roles = QueryXml(ServerURL, Operations::kGetUserRoles, {m_facts.userId});
    for (const XmlNode& role : roles.Select(L"//z:row")) {
        if (role.Text(L"RoleID") == L"1")
            return ToBooleanSafe(QueryText(ServerURL, Operations::kCheckUserManageAccess, {ProjectID}));
    }
    return false;
}

SaveDialog::TargetState frmSaveAssignment::Allow() const
{
    const bool completed = m_facts.statusCode == kStatusCompleted;
    SetText(txtNotes, ReplaceAll(m_statusNote, L"\n", L"\r\n"));
    SetText(txtAuthor, m_userName);
    Check(chkComplete, completed);
    Enable(chkComplete, !completed && m_completionAllowed);
    return TargetState::Allowed;
}

void frmSaveAssignment::ShowActivityRow(bool shown)
{
    if (shown == m_activityRowShown) return;
    m_activityRowShown = shown;
    for (const int control : {txtActivity, lblActivity})
        Show(control, shown);
    ChangeLayout([this] {
        const int row = ControlPlace(Control(txtActivity)).top - ControlPlace(Control(txtDeliverable)).top;
        const int step = m_activityRowShown ? row : -row;
        const int below = ControlPlace(Control(VersionDetailsFrame)).top;
        Grow(Control(SaveToFrame), step);
        ShiftBelow(Window(), below, step);
        Grow(Window(), step);
        StretchNotes();
    });
}

// Without the activity's row the form has a height of its own; the notes take up the difference, down to one line.
void frmSaveAssignment::StretchNotes()
{
    if (!m_activityRowShown) {
        const int least = HeightOf(Control(txtAuthor)) - HeightOf(Control(txtNotes));
        m_stretch = std::max(PixelsOfTwips(kHeightWithoutActivity) - HeightOf(Window()), least);
    }
    const int stretch = m_activityRowShown ? -m_stretch : m_stretch;
    ShiftBelow(Window(), ControlPlace(Control(txtNotes)).bottom, stretch);
    for (const int control : {AssignmentDetailsFrame, txtNotes})
        Grow(Control(control), stretch);
    Grow(Window(), stretch);
}

} // namespace corvane
