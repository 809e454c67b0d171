#include "addin/CController.h"

#include "forms/Messages.h"
#include "platform/Procedure.h"

namespace corvane
{

HRESULT CController::Start(CommandKind kind, void (CAddInMenus::*helper)(std::wstring_view caller) noexcept) noexcept
{
    const auto failure = Catch([&] { ((*AddInMenus()).*helper)(L"Custom"); });
    if (!failure) return S_OK;
    Ignoring([&] {
        ::SetCursor(::LoadCursorW(nullptr, IDC_ARROW));
        ShowMessage(std::wstring{L"CController."} + CommandOf(kind).method + L"\r\n" + failure->Description(),
                    kStylePlain, L"CorvaneMSOffice");
    });
    return S_OK;
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
