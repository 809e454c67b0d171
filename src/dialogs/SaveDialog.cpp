#include "dialogs/SaveDialog.h"

#include "forms/Messages.h"
#include "forms/WindCloseBtn.h"
#include "platform/Procedure.h"
#include "resources/resource.h"
#include "selection/frmSaveTo.h"
#include "shared/ClientEvents.h"
#include "shared/MailClient.h"
#include "shared/SaveResult.h"
#include "support/CCustomNames.h"
#include "support/Conversions.h"
#include "support/ServerRules.h"
#include "webservice/WebService.h"

namespace corvane
{

std::span<const FormHandler> SaveDialog::Handlers() const
{
    // Controls that a dialog does not have never notify.
    using Self = SaveDialog;
    static const FormHandler kHandlers[] = {
        Handle(cmdSave, BN_CLICKED, L"cmdSave_Click", &Self::cmdSave_Click),
        Handle(cmdSaveAndSend, BN_CLICKED, L"cmdSaveAndSend_Click", &Self::cmdSaveAndSend_Click),
        Handle(cmdCancel, BN_CLICKED, L"cmdCancel_Click", &Self::cmdCancel_Click),
        Handle(cmdChange, BN_CLICKED, L"cmdChange_Click", &Self::cmdChange_Click),
        Handle(cmdHelp, BN_CLICKED, L"cmdHelp_Click", &Self::cmdHelp_Click),
        Handle(txtComments, EN_SETFOCUS, L"txtComments_GotFocus", &Self::MultiLine_GotFocus),
        Handle(txtComments, EN_KILLFOCUS, L"txtComments_LostFocus", &Self::MultiLine_LostFocus),
        Handle(txtNotes, EN_SETFOCUS, L"txtNotes_GotFocus", &Self::MultiLine_GotFocus),
        Handle(txtNotes, EN_KILLFOCUS, L"txtNotes_LostFocus", &Self::MultiLine_LostFocus),
        Handle(txtDescription, EN_SETFOCUS, L"txtDescription_GotFocus", &Self::MultiLine_GotFocus),
        Handle(txtDescription, EN_KILLFOCUS, L"txtDescription_LostFocus", &Self::MultiLine_LostFocus),
    };
    return kHandlers;
}

int SaveDialog::FirstControl() const noexcept { return Control(txtName) != nullptr ? txtName : txtAuthor; }

int SaveDialog::HelpControl() const noexcept { return cmdHelp; }

void SaveDialog::Form_Initialize()
{
    m_mailClientIsOutlook = IsMailClientOutlook();
    Show(cmdSaveAndSend, m_mailClientIsOutlook);
    SetStatus(StatusBar1, L"Ready");
    ShowStatusDetail();
    ShowProject({}); // the tooltip's server is known before the name
}

void SaveDialog::Form_Load()
{
    if (const auto failure = Catch([this] { LoadInputs(); })) ReportError(*failure);
    Form::UnloadNamed(L"frmBusy");
    Document.SetInteractive(true);
}

void SaveDialog::LoadInputs()
{
    m_terms.corvane = CustomName(L"Corvane");
    m_terms.deliverable = CustomName(L"Deliverable");
    m_terms.activity = CustomName(L"Activity");
    m_terms.stage = CustomName(L"Stage");
    m_terms.gate = CustomName(L"Gate");
    m_terms.gateDocument = CustomName(L"Gate Document");
    m_terms.completed = CustomName(L"Completed");
    ShowTerms();
    const auto failure = Catch([this] {
        if (m_kind.asksForUser && !ServerURL.empty()) static_cast<void>(UserId());
    });
    // What needs no server is there all the same: Change may lead to another one when this one fails.
    m_clientEvents = ClientEventsEnabled(Document);
    Check(chkPublish, AutomaticallySetPublishCheckbox);
    if (failure) throw *failure;
    if (!ServerURL.empty()) ReloadTarget();
}

void SaveDialog::ShowStatusDetail() const { SetStatusDetail(StatusBar1, WithoutCredentials(ServerURL)); }

void SaveDialog::ShowWait(const std::wstring& text)
{
    if (text.empty()) return ShowStatusDetail();
    SetStatusDetail(StatusBar1, text);
}

void SaveDialog::ShowProject(const std::wstring& name) const
{
    SetText(txtProject, name, WithoutCredentials(ServerURL));
}

std::int32_t SaveDialog::UserId() const { return ToLongSafe(QueryText(ServerURL, Operations::kGetUserId, {})); }

void SaveDialog::ReloadTarget()
{
    // Until the rules have decided about this target, nothing is saved to it and no other is chosen.
    const bool couldSave = ::IsWindowEnabled(Control(cmdSave)) != FALSE;
    m_targetState = TargetState::Unread;
    EnableSave(false);
    Enable(cmdChange, false);
    SetHourglass(true);
    const auto failure = Catch([this] { m_targetState = LoadTarget(); });
    SetHourglass(false);
    Enable(cmdChange, true);
    EnableSave(m_targetState == TargetState::Allowed || (m_targetState != TargetState::Refused && couldSave));
    if (failure && !m_left) throw *failure;
}

void SaveDialog::EnableSave(bool enabled) const noexcept
{
    Enable(cmdSave, enabled);
    Enable(cmdSaveAndSend, enabled && m_mailClientIsOutlook);
}

SaveDialog::TargetState SaveDialog::Refuse(Refusal refusal) const
{
    Tell(RefusalMessage(refusal, m_terms), kStyleExclamation);
    return TargetState::Refused;
}

void SaveDialog::Tell(const std::wstring& text, UINT style) const
{
    if (m_left) return;
    LastSave().Refuse(text);
    ShowMessage(text, style);
}

void SaveDialog::ShowTypeCaptions()
{
    const auto& [caption, advisory, type] = m_kind.captions;
    SetCaption(ReplaceAll(caption, type, m_terms.targetType));
    SetText(lblAdvisory,
            EscapeAmpersands(ReplaceAll(ReplaceAll(advisory, L"Corvane", m_terms.corvane), type, m_terms.targetType)));
}

void SaveDialog::SetControlsEnabled(bool enabled)
{
    const std::wstring procedure = std::wstring{m_kind.name} + L".SetControlsEnabled";
    const ProcedureScope scope{procedure};
    std::vector<int> controls{cmdSave, cmdCancel, cmdHelp, cmdChange};
    controls.insert(controls.end(), m_kind.controls.begin(), m_kind.controls.end());
    if (IsShown(cmdSaveAndSend)) controls.push_back(cmdSaveAndSend);
    Enable(controls, enabled);
    EnableCloseButton(Window(), enabled);
}

SaveDialog::Entries SaveDialog::ReadEntries() const
{
    return {.name = Trim(Text(txtName)),
            .author = Trim(Text(txtAuthor)),
            .comments = Trim(Text(txtComments)),
            .notes = Trim(Text(txtNotes)),
            .description = Trim(Text(txtDescription)),
            .category = Trim(Text(cboGroup)),
            .publish = IsChecked(chkPublish),
            .complete = IsChecked(chkComplete)};
}

void SaveDialog::ShowError(const Error& error) const
{
    if (error.Number() == kAutomationDeclined) return;
    const auto message = SaveErrorMessage(m_kind.errors, error.Number(), m_terms);
    if (!message) return ReportError(error);
    LastSave().Refuse(*message, error.Number());
    ShowMessage(*message, kStyleExclamation);
}

void SaveDialog::cmdChange_Click()
{
    if (m_inMacro) return;
    frmSaveTo tree;
    tree.DialogType = static_cast<std::int32_t>(m_kind.tree);
    tree.ServerURL = ServerURL;
    tree.target = target;
    tree.ShowModal();
    tree.Unload();
    if (tree.ServerURL == ServerURL && IsSameTarget(m_kind.tree, tree.target, target)) return;
    ServerURL = tree.ServerURL;
    target = tree.target;
    ShowStatusDetail();
    ReloadTarget();
    if (!m_left) SetFocusTo(FirstControl());
}

void SaveDialog::cmdCancel_Click()
{
    if (m_inMacro) return;
    m_left = true;
    Hide();
}

void SaveDialog::cmdHelp_Click() { ShowHelpTopic(Window(), m_kind.helpTopic); }

void SaveDialog::MultiLine_GotFocus() { SetDefaultButton(0); }

void SaveDialog::MultiLine_LostFocus() { SetDefaultButton(cmdSave); }

} // namespace corvane
