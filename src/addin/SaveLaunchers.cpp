#include "addin/SaveLaunchers.h"

#include "addin/CAddInMenus.h"
#include "dialogs/frmSaveAssignment.h"
#include "dialogs/frmSaveGateDoc.h"
#include "dialogs/frmSaveRelatedDoc.h"
#include "platform/Procedure.h"
#include "support/CCustomNames.h"
#include "support/Conversions.h"
#include "webservice/WebService.h"

namespace corvane
{
namespace
{

// What every launch does before its dialog, and what it hands to it.
void Prepare(SaveDialog& dialog, const frmBusy& busy)
{
    CustomNames().RefreshOnce(busy.sServer);
    AddInMenus()->SetUICaptions();
    dialog.AutomaticallySetPublishCheckbox = ToBooleanSafe(QueryText(
        busy.sServer, Operations::kIsAutoSetPublishCheckbox, {std::wstring{L"AutomaticallySetPublishCheckbox"}}));
    dialog.ServerURL = busy.sServer;
    dialog.ProjectID = busy.lProjectID;
    dialog.oApplication = busy.oApplication;
    dialog.OutlookInspector = busy.oOutlookInspector;
}

void LaunchSaveGateDoc(frmBusy& busy)
{
    const ProcedureScope scope{L"SharedCode.LaunchSaveGateDoc"};
    frmSaveGateDoc dialog;
    Prepare(dialog, busy);
    dialog.GateDocumentID = busy.lGateDocID;
    dialog.ShowModal();
}

void LaunchSaveRelatedDoc(frmBusy& busy)
{
    const ProcedureScope scope{L"SharedCode.LaunchSaveRelatedDoc"};
    frmSaveRelatedDoc dialog;
    Prepare(dialog, busy);
    dialog.RelatedDocID = busy.lRelatedDocID;
    dialog.ShowModal();
}

void LaunchSaveAssignment(frmBusy& busy)
{
    const ProcedureScope scope{L"SharedCode.LaunchSaveAssignment"};
    frmSaveAssignment dialog;
    Prepare(dialog, busy);
    dialog.DeliverableID = busy.lDeliverableID;
    dialog.ActivityID = busy.lActivityID;
    dialog.ShowModal();
}

} // namespace

SaveProcedures MakeSaveProcedures() { return {&LaunchSaveAssignment, &LaunchSaveGateDoc, &LaunchSaveRelatedDoc}; }

} // namespace corvane
