#include "addin/CController.h"

#include "addin/CAddInMenus.h"
#include "forms/Messages.h"
#include "platform/Procedure.h"

namespace corvane
{

HRESULT CController::Start(CommandKind kind) noexcept
{
    const Command& command = CommandOf(kind);
    const auto failure = Catch([&] { AddInMenus()->Run(command, L"Custom"); });
    if (!failure) return S_OK;
    Ignoring([&] {
        ::SetCursor(::LoadCursorW(nullptr, IDC_ARROW));
        ShowMessage(std::wstring{L"CController."} + command.method + L"\r\n" + failure->Description(), kStylePlain,
                    L"CorvaneMSOffice");
    });
    return S_OK;
}

STDMETHODIMP CController::SaveAsAssignement() noexcept { return Start(CommandKind::SaveAssignment); }

STDMETHODIMP CController::SaveGateDoc() noexcept { return Start(CommandKind::SaveGateDoc); }

STDMETHODIMP CController::SaveRelatedDoc() noexcept { return Start(CommandKind::SaveRelatedDoc); }

} // namespace corvane
