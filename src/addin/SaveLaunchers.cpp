#include "addin/SaveLaunchers.h"

#include "addin/CAddInMenus.h"
#include "dialogs/frmSaveAssignment.h"
#include "dialogs/frmSaveGateDoc.h"
#include "dialogs/frmSaveRelatedDoc.h"
#include "platform/AnswerWait.h"
#include "platform/Procedure.h"
#include "support/CCustomNames.h"
#include "support/Conversions.h"
#include "webservice/WebService.h"

namespace corvane
{
namespace
{

// What every launch does before its dialog, and what it hands to it. The window is made while the server answers.
void Prepare(SaveDialog& dialog, const frmBusy& busy)
{
    dialog.ServerURL = busy.sServer;
    dialog.target = busy.target;
    dialog.Document = busy.oDocument;
    const Meanwhile window{[&dialog] { dialog.MakeWindow(); }};
    CustomNames().RefreshOnce(busy.sServer, kServicePage);
    AddInMenus()->SetUICaptions();
    dialog.AutomaticallySetPublishCheckbox = ToBooleanSafe(QueryText(
        busy.sServer, Operations::kIsAutoSetPublishCheckbox, {std::wstring{L"AutomaticallySetPublishCheckbox"}}));
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
