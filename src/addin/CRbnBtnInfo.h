// The description of a ribbon button as a class for other components.
#pragma once

#include "addin.h"
#include "addin/RibbonElement.h"
#include "platform/ComObject.h"

namespace corvane
{

// One button record behind the public interface.
class CRbnBtnInfo final : public PublicObject<CRbnBtnInfo, Dispatched<_CRbnBtnInfo>>
{
public:
    STDMETHODIMP get_ID(BSTR* Value) noexcept override { return Get(m_button.id, Value); }
    STDMETHODIMP put_ID(BSTR Value) noexcept override { return Put(m_button.id, Value); }
    STDMETHODIMP get_Label(BSTR* Value) noexcept override { return Get(m_button.label, Value); }
    STDMETHODIMP put_Label(BSTR Value) noexcept override { return Put(m_button.label, Value); }
    STDMETHODIMP get_ImageMso(BSTR* Value) noexcept override { return Get(m_button.imageMso, Value); }
    STDMETHODIMP put_ImageMso(BSTR Value) noexcept override { return Put(m_button.imageMso, Value); }
    STDMETHODIMP get_Screentip(BSTR* Value) noexcept override { return Get(m_button.screentip, Value); }
    STDMETHODIMP put_Screentip(BSTR Value) noexcept override { return Put(m_button.screentip, Value); }
    STDMETHODIMP get_Supertip(BSTR* Value) noexcept override { return Get(m_button.supertip, Value); }
    STDMETHODIMP put_Supertip(BSTR Value) noexcept override { return Put(m_button.supertip, Value); }
    STDMETHODIMP get_GetEnabled(BSTR* Value) noexcept override { return Get(m_button.getEnabled, Value); }
    STDMETHODIMP put_GetEnabled(BSTR Value) noexcept override { return Put(m_button.getEnabled, Value); }
    STDMETHODIMP get_GetLabel(BSTR* Value) noexcept override { return Get(m_button.getLabel, Value); }
    STDMETHODIMP put_GetLabel(BSTR Value) noexcept override { return Put(m_button.getLabel, Value); }
    STDMETHODIMP get_GetSupertip(BSTR* Value) noexcept override { return Get(m_button.getSupertip, Value); }
    STDMETHODIMP put_GetSupertip(BSTR Value) noexcept override { return Put(m_button.getSupertip, Value); }
    STDMETHODIMP get_GetScreentip(BSTR* Value) noexcept override { return Get(m_button.getScreentip, Value); }
    STDMETHODIMP put_GetScreentip(BSTR Value) noexcept override { return Put(m_button.getScreentip, Value); }
    STDMETHODIMP get_OnAction(BSTR* Value) noexcept override { return Get(m_button.onAction, Value); }
    STDMETHODIMP put_OnAction(BSTR Value) noexcept override { return Put(m_button.onAction, Value); }
    STDMETHODIMP get_Description(BSTR* Value) noexcept override { return Get(m_button.description, Value); }
    STDMETHODIMP put_Description(BSTR Value) noexcept override { return Put(m_button.description, Value); }
    STDMETHODIMP get_Size(BSTR* Value) noexcept override { return Get(m_button.size, Value); }
    STDMETHODIMP put_Size(BSTR Value) noexcept override { return Put(m_button.size, Value); }
    STDMETHODIMP Clear() noexcept override;

private:
    HRESULT Get(const std::wstring& text, BSTR* value) const noexcept;
    HRESULT Put(std::wstring& text, BSTR value) const noexcept;

    RibbonButton m_button;
};

} // namespace corvane
