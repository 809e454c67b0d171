#include "dialogs/frmSaveGateDoc.h"

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
constexpr int kSaveControls[] = {chkPublish, txtAuthor, txtComments};
constexpr TypeCaptions kTypeCaptions{L"Save as Gate Document", L"This will create a new version of the Gate Document",
                                     L"Gate Document"};
constexpr std::int32_t kGateDocumentObject = 3; // object kind of the update right
} // namespace

frmSaveGateDoc::frmSaveGateDoc() noexcept
    : SaveDialog{{.name = L"frmSaveGateDoc",
                  .templateId = IDD_frmSaveGateDoc,
                  .tree = TreeMode::GateDocument,
                  .helpTopic = HelpTopic::SaveGateDocument,
                  .errors = kGateDocumentErrors,
                  .captions = kTypeCaptions,
                  .controls = kSaveControls,
                  .asksForUser = true}}
{}

void frmSaveGateDoc::ShowTerms()
{
    Terms().targetType = Terms().gateDocument;
    SetText(lblGateDocument, EscapeAmpersands(Terms().gateDocument));
    SetText(lblGate, EscapeAmpersands(Terms().gate));
}

SaveDialog::TargetState frmSaveGateDoc::LoadTarget()
{
    const ProcedureScope scope{L"frmSaveGateDoc.LoadGateDocument"};
    m_facts = {};
    Terms().ownerName.clear();
    m_userId = UserId();
    LoadRights();
    if (HasTarget()) LoadGateDocument();
    if (ProjectID >= 1 && IsOutsider(m_facts)) {
        Tell(RefusalMessage(Refusal::OutsideTheTeam, Terms()), kStyleCritical);
        return TargetState::Undecided;
    }
    ShowTypeCaptions();
    const std::wstring userName = FirstRow(QueryXml(ServerURL, Operations::kGetUser, {})).Text(L"Name");
    const UploadDecision decision = DecideGateDocument(m_facts);
    if (decision.verdict == Verdict::Refused) return Refuse(decision.refusal);
    SetText(txtAuthor, userName);
    return TargetState::Allowed;
}

void frmSaveGateDoc::LoadRights()
{
    m_facts.isTeamMember = ToBooleanSafe(QueryText(ServerURL, Operations::kIsProjectTeamMember, {ProjectID}));
    m_facts.mayUpdate =
        ToBooleanSafe(QueryText(ServerURL, Operations::kUserCanUpdate, {GateDocumentID, kGateDocumentObject}));
}

void frmSaveGateDoc::LoadGateDocument()
{
    const XmlDocument answer = QueryXml(ServerURL, Operations::kGetProjectGateDocument, {GateDocumentID, m_userId});
    const XmlNode row = FirstRow(answer);
    Terms().projectName = row.Text(L"ProjectName");
    ShowProject(Terms().projectName);
    SetText(txtGateDocument, row.Text(L"Name"));
    SetText(txtGate, row.Text(L"GateName"));
    m_statusComment = row.Text(L"StatusComment");
    const std::int32_t ownerId = ToLongSafe(row.Text(L"GateOwnerID"));
    if (ownerId != 0) Terms().ownerName = row.Text(L"OwnerName");
    m_facts.isOwner = ownerId == m_userId;
    m_facts.hasOwnerName = !Terms().ownerName.empty();
    m_facts.projectClosed = ToBooleanSafe(row.Text(L"ProjectClosed"));
}

bool frmSaveGateDoc::MaySave()
{
    if (!IsOutsider(m_facts)) return true;
    Tell(RefusalMessage(Refusal::OutsideTheTeam, Terms()), kStyleCritical);
    return false;
}

std::wstring frmSaveGateDoc::Record(const std::wstring& uploadName)
{
    return QueryText(ServerURL, Operations::kUploadGateDocument,
                     {Document.Application().Text(L"Name"), ProjectID, GateDocumentID, uploadName, Entered().author,
                      Entered().comments, Entered().publish ? 1 : 0, 0, m_statusComment});
}

NotificationFacts frmSaveGateDoc::Notified() const
{
    NotificationFacts facts = NotificationOf(NotifiedKind::GateDocument, GateDocumentID, Text(txtGateDocument));
    facts.term = Terms().gateDocument;
    facts.gateTerm = Terms().gate;
    facts.gateName = Text(txtGate);
    return facts;
}

void frmSaveGateDoc::AddLatestVersion(NotificationFacts& facts) const
{
    const ProcedureScope scope{L"frmSaveGateDoc.GetLatestGateVersionInfo"};
    const XmlDocument answer = QueryXml(ServerURL, Operations::kGetProjectGateDocument, {GateDocumentID, m_userId});
    const XmlNode row = FirstRow(answer);
    facts.version = row.Text(L"LatestVersion");
    facts.date = ShownDate(ParseDate(row.Text(L"LatestVersionUploadedOn"), kVersionTimeLayout));
}

} // namespace corvane
