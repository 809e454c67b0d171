// How the last save command ended, as a class for macros: COMAddIn.Object of the connected add-in.
#pragma once

#include "addin.h"
#include "platform/ComObject.h"
#include "shared/SaveResult.h"

namespace corvane
{

// Shows the process's last result; a command that runs meanwhile changes what it shows.
class CSaveResult final : public PublicObject<CSaveResult, Dispatched<_CSaveResult>>
{
public:
    STDMETHODIMP get_Outcome(LONG* Value) noexcept override;
    STDMETHODIMP get_ErrorNumber(LONG* Value) noexcept override;
    STDMETHODIMP get_ErrorDescription(BSTR* Value) noexcept override;
    STDMETHODIMP get_Server(BSTR* Value) noexcept override { return Get(&SavedVersion::server, Value); }
    STDMETHODIMP get_ProjectID(LONG* Value) noexcept override { return Get(&Target::projectId, Value); }
    STDMETHODIMP get_DeliverableID(LONG* Value) noexcept override { return Get(&Target::deliverableId, Value); }
    STDMETHODIMP get_ActivityID(LONG* Value) noexcept override { return Get(&Target::activityId, Value); }
    STDMETHODIMP get_RelatedDocumentID(LONG* Value) noexcept override { return Get(&Target::relatedFileId, Value); }
    STDMETHODIMP get_GateDocumentID(LONG* Value) noexcept override { return Get(&Target::gateDocumentId, Value); }
    STDMETHODIMP get_VersionLink(BSTR* Value) noexcept override { return Get(&SavedVersion::link, Value); }
    STDMETHODIMP get_UploadedName(BSTR* Value) noexcept override { return Get(&SavedVersion::fileName, Value); }

private:
    HRESULT Get(std::int32_t Target::*id, LONG* into) const noexcept;
    HRESULT Get(std::wstring SavedVersion::*text, BSTR* into) const noexcept;
};

} // namespace corvane
