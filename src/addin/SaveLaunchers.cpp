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
    dialog.Document = busy.sDocument;
}

// An id of the target: where the dialog takes it and where the busy window keeps it.
template<class Dialog>
struct HandedId
{
    std::int32_t Dialog::*to;
    std::int32_t frmBusy::*from;
};

template<class Dialog>
void Launch(const frmBusy& busy, std::initializer_list<HandedId<Dialog>> ids)
{
    const ProcedureScope scope{L"SharedCode.LaunchSaveDialog"};
    Dialog dialog;
    Prepare(dialog, busy);
    for (const auto& [to, from] : ids)
        dialog.*to = busy.*from;
    dialog.ShowModal();
}

} // namespace

SaveProcedures MakeSaveProcedures()
{
    return {[](frmBusy& busy) {
                Launch<frmSaveAssignment>(busy, {{&frmSaveAssignment::DeliverableID, &frmBusy::lDeliverableID},
                                                 {&frmSaveAssignment::ActivityID, &frmBusy::lActivityID}});
            },
            [](frmBusy& busy) {
                Launch<frmSaveGateDoc>(busy, {{&frmSaveGateDoc::GateDocumentID, &frmBusy::lGateDocID}});
            },
            [](frmBusy& busy) {
                Launch<frmSaveRelatedDoc>(busy, {{&frmSaveRelatedDoc::RelatedDocID, &frmBusy::lRelatedDocID}});
            }};
}

} // namespace corvane
