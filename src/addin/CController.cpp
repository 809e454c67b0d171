#include "addin/CController.h"

#include "addin/CAddInMenus.h"
#include "forms/Messages.h"
#include "platform/Procedure.h"

namespace corvane
{

HRESULT CController::Start(const wchar_t* method, Command command) noexcept
{
    const auto failure = Catch([&] { ((*AddInMenus()).*command)(L"Custom"); });
    if (!failure) return S_OK;
    Ignoring([&] {
        ::SetCursor(::LoadCursorW(nullptr, IDC_ARROW));
        ShowMessage(std::wstring{L"CController"} + method + L"\r\n" + failure->Description(), kStylePlain,
                    L"CorvaneMSOffice");
    });
    return S_OK;
}

STDMETHODIMP CController::SaveAsAssignement() noexcept
{
    return Start(L".SaveAsAssignement", &CAddInMenus::SaveAssignmentClickHelper);
}

STDMETHODIMP CController::SaveGateDoc() noexcept
{
    return Start(L".SaveGateDoc", &CAddInMenus::SaveGateDocClickHelper);
}

STDMETHODIMP CController::SaveRelatedDoc() noexcept
{
    return Start(L".SaveRelatedDoc", &CAddInMenus::SaveRelatedDocClickHelper);
}

} // namespace corvane
