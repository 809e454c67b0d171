// How the last save command ended, as a class for macros: COMAddIn.Object of the connected add-in.
#pragma once

#include "addin.h"
#include "platform/ComObject.h"

namespace corvane
{

// Shows the process's last result; a command that runs meanwhile changes what it shows.
class CSaveResult final : public PublicObject<CSaveResult, Dispatched<_CSaveResult>>
{
public:
    STDMETHODIMP get_Outcome(LONG* Value) noexcept override;
    STDMETHODIMP get_ErrorNumber(LONG* Value) noexcept override;
    STDMETHODIMP get_ErrorDescription(BSTR* Value) noexcept override;
    STDMETHODIMP get_Server(BSTR* Value) noexcept override;
    STDMETHODIMP get_ProjectID(LONG* Value) noexcept override;
    STDMETHODIMP get_DeliverableID(LONG* Value) noexcept override;
    STDMETHODIMP get_ActivityID(LONG* Value) noexcept override;
    STDMETHODIMP get_RelatedDocumentID(LONG* Value) noexcept override;
    STDMETHODIMP get_GateDocumentID(LONG* Value) noexcept override;
    STDMETHODIMP get_VersionLink(BSTR* Value) noexcept override;
    STDMETHODIMP get_UploadedName(BSTR* Value) noexcept override;

private:
    template<class Read>
    HRESULT Number(Read read, LONG* into) const noexcept;
    template<class Read>
    HRESULT Text(Read read, BSTR* into) const noexcept;
};

} // namespace corvane
