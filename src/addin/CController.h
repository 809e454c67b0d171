// The public class through which other code starts the save commands.
#pragma once

#include "addin.h"
#include "addin/CAddInMenus.h"
#include "platform/ComObject.h"

namespace corvane
{

// Starts a command of the connected add-in; when there is none it says so in a message of its own.
class CController final : public PublicObject<CController, Dispatched<_CController>>
{
public:
    STDMETHODIMP SaveAsAssignement() noexcept override;
    STDMETHODIMP SaveGateDoc() noexcept override;
    STDMETHODIMP SaveRelatedDoc() noexcept override;

private:
    HRESULT Start(CommandKind kind, void (CAddInMenus::*helper)(std::wstring_view caller) noexcept) const noexcept;
};

} // namespace corvane
