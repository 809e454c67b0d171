#include "addin/CSaveResult.h"

#include "platform/HandOut.h"
#include "shared/SaveResult.h"

namespace corvane
{

template<class Read>
HRESULT CSaveResult::Number(Read read, LONG* into) const noexcept
{
    return Serve([&] {
        if (into == nullptr) return E_POINTER;
        *into = static_cast<LONG>(read(std::as_const(LastSave())));
        return S_OK;
    });
}

template<class Read>
HRESULT CSaveResult::Text(Read read, BSTR* into) const noexcept
{
    return Serve([&] { return HandOut(read(std::as_const(LastSave())), into); });
}

STDMETHODIMP CSaveResult::get_Outcome(LONG* Value) noexcept
{
    return Number([](const SaveResult& last) { return last.Outcome(); }, Value);
}

STDMETHODIMP CSaveResult::get_ErrorNumber(LONG* Value) noexcept
{
    return Number([](const SaveResult& last) { return last.ErrorNumber(); }, Value);
}

STDMETHODIMP CSaveResult::get_ErrorDescription(BSTR* Value) noexcept
{
    return Text([](const SaveResult& last) -> const std::wstring& { return last.ErrorDescription(); }, Value);
}

STDMETHODIMP CSaveResult::get_Server(BSTR* Value) noexcept
{
    return Text([](const SaveResult& last) -> const std::wstring& { return last.Version().server; }, Value);
}

STDMETHODIMP CSaveResult::get_ProjectID(LONG* Value) noexcept
{
    return Number([](const SaveResult& last) { return last.Version().target.projectId; }, Value);
}

STDMETHODIMP CSaveResult::get_DeliverableID(LONG* Value) noexcept
{
    return Number([](const SaveResult& last) { return last.Version().target.deliverableId; }, Value);
}

STDMETHODIMP CSaveResult::get_ActivityID(LONG* Value) noexcept
{
    return Number([](const SaveResult& last) { return last.Version().target.activityId; }, Value);
}

STDMETHODIMP CSaveResult::get_RelatedDocumentID(LONG* Value) noexcept
{
    return Number([](const SaveResult& last) { return last.Version().target.relatedFileId; }, Value);
}

STDMETHODIMP CSaveResult::get_GateDocumentID(LONG* Value) noexcept
{
    return Number([](const SaveResult& last) { return last.Version().target.gateDocumentId; }, Value);
}

STDMETHODIMP CSaveResult::get_VersionLink(BSTR* Value) noexcept
{
    return Text([](const SaveResult& last) -> const std::wstring& { return last.Version().link; }, Value);
}

STDMETHODIMP CSaveResult::get_UploadedName(BSTR* Value) noexcept
{
    return Text([](const SaveResult& last) -> const std::wstring& { return last.Version().fileName; }, Value);
}

} // namespace corvane
