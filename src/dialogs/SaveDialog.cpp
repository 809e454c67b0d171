#include "dialogs/SaveDialog.h"

#include "platform/MessageLoop.h"
#include "platform/Procedure.h"
#include "resources/resource.h"
#include "selection/WindCloseBtn.h"
#include "shared/ClientEvents.h"
#include "shared/DocumentNames.h"
#include "shared/DocumentProperties.h"
#include "shared/HostDocument.h"
#include "shared/MailClient.h"
#include "webservice/Transfer.h"

namespace corvane
{
namespace
{
// How long "Save Complete" stays before the dialog goes.
constexpr std::chrono::milliseconds kCompletePause{1000};
} // namespace

void SaveDialog::Form_Load()
{
    if (const auto failure = Catch([this] { LoadInputs(); }))
    {
        // What could not be checked is not saved.
        SetSaveAllowed(false);
        ReportError(*failure);
    }
    Form::UnloadNamed(L"frmBusy");
    SetExcelInteractive(oApplication, true);
}

void SaveDialog::LoadInputs()
{
    SetStatus(StatusBar1, L"Ready");
    LoadCaptions();
    if (!ServerURL.empty()) LoadUser();
    m_clientEvents = ClientEventsEnabled(oApplication);
    Check(chkPublish, AutomaticallySetPublishCheckbox);
    m_mailClientIsOutlook = IsMailClientOutlook();
    Show(cmdSaveAndSend, m_mailClientIsOutlook);
    if (!ServerURL.empty()) LoadTarget();
}

int SaveDialog::FirstControl() const noexcept { return txtAuthor; }

int SaveDialog::HelpControl() const noexcept { return cmdHelp; }

void SaveDialog::SetSaveAllowed(bool allowed) const noexcept
{
    Enable(cmdSave, allowed);
    Enable(cmdSaveAndSend, allowed && m_mailClientIsOutlook);
    if (allowed) Show(cmdSaveAndSend, m_mailClientIsOutlook);
}

void SaveDialog::SetControlsEnabled(bool enabled)
{
    for (const int control : {cmdSave, cmdCancel, cmdHelp, cmdChange})
        Enable(control, enabled);
    for (const int control : SaveControls())
        Enable(control, enabled);
    if (IsShown(cmdSaveAndSend)) Enable(cmdSaveAndSend, enabled);
    EnableCloseButton(Window(), enabled);
}

bool SaveDialog::Save()
{
    if (!ConfirmSave())
    {
        Hide();
        return false;
    }
    bool saved = false;
    const auto failure = Catch([&] { saved = UploadAndRecord(); });
    if (failure && !ShowSaveError(*failure)) ReportError(*failure);
    SetStatus(StatusBar1, L"Ready");
    SetControlsEnabled(true);
    SetHourglass(false);
    if (saved) Hide();
    return saved;
}

bool SaveDialog::UploadAndRecord()
{
    const ProcedureScope scope{L"SaveDialog.UploadAndRecord"};
    if (m_clientEvents) RunBeforeSaveEvent(oApplication);
    SetStatus(StatusBar1, L"Contacting the server...");
    SetControlsEnabled(false);
    SetHourglass(true);
    if (CanCarryProperties(oApplication))
    {
        SetBindingProperties(oApplication, Binding());
        MarkDocumentChanged(oApplication);
    }
    const std::wstring title = DocumentTitle(oApplication, OutlookInspector);
    const SavedDocument file = SaveDocumentToDisk(oApplication, OutlookInspector);
    const std::wstring uploadName = UploadNameOf(title, file.path);
    ExecuteASPWSUploadFile(ServerURL, file.path, uploadName);

    if (ProcessSaveResult(Record(uploadName)) == L"CANCEL") return false;
    if (m_clientEvents) RunAfterSaveEvent(oApplication);
    SetStatus(StatusBar1, L"Save Complete");
    PumpFor(kCompletePause);
    return true;
}

void SaveDialog::cmdSave_Click() { Save(); }

void SaveDialog::cmdSaveAndSend_Click() { Save(); }

void SaveDialog::cmdCancel_Click() { Hide(); }

void SaveDialog::MultiLine_GotFocus() { SetDefaultButton(0); }

void SaveDialog::MultiLine_LostFocus() { SetDefaultButton(cmdSave); }

} // namespace corvane
