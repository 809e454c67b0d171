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
    CustomNames().RefreshOnce(busy.sServer, kServicePage);
    AddInMenus()->SetUICaptions();
    dialog.AutomaticallySetPublishCheckbox = ToBooleanSafe(QueryText(
        busy.sServer, Operations::kIsAutoSetPublishCheckbox, {std::wstring{L"AutomaticallySetPublishCheckbox"}}));
    dialog.ServerURL = busy.sServer;
    dialog.target = busy.target;
    dialog.Document = busy.oDocument;
}

template<class Dialog>
void Launch(const frmBusy& busy)
{
    const ProcedureScope scope{L"SharedCode.LaunchSaveDialog"};
    Dialog dialog;
    Prepare(dialog, busy);
    dialog.ShowModal();
}

} // namespace

SaveProcedures MakeSaveProcedures()
{
    return {&Launch<frmSaveAssignment>, &Launch<frmSaveGateDoc>, &Launch<frmSaveRelatedDoc>};
}

} // namespace corvane
