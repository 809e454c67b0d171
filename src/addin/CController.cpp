#include "addin/CController.h"

#include "forms/Messages.h"
#include "platform/Procedure.h"

namespace corvane
{

HRESULT CController::Start(CommandKind kind,
                           void (CAddInMenus::*helper)(std::wstring_view caller) noexcept) const noexcept
{
    return Serve([&] {
        const auto failure = Catch([&] { ((*AddInMenus()).*helper)(L"Custom"); });
        if (!failure) return;
        Ignoring([&] {
            ::SetCursor(::LoadCursorW(nullptr, IDC_ARROW));
            ShowMessage(std::wstring{L"CController."} + CommandOf(kind).method + L"\r\n" + failure->Description(),
                        kStylePlain, L"CorvaneMSOffice");
        });
    });
}

STDMETHODIMP CController::SaveAsAssignement() noexcept
{
    return Start(CommandKind::SaveAssignment, &CAddInMenus::SaveAssignmentClickHelper);
}

STDMETHODIMP CController::SaveGateDoc() noexcept
{
    return Start(CommandKind::SaveGateDoc, &CAddInMenus::SaveGateDocClickHelper);
}

STDMETHODIMP CController::SaveRelatedDoc() noexcept
{
    return Start(CommandKind::SaveRelatedDoc, &CAddInMenus::SaveRelatedDocClickHelper);
}

} // namespace corvane
