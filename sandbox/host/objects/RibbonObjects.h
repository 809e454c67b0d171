#pragma once

#include <functional>

#include "automation/AutomationObject.h"
#include "automation/OfficeInterfaces.h"

namespace host
{

// The ribbon as an add-in sees it: asks the host to read dynamic controls again.
class RibbonUiObject final : public AutomationObject<IRibbonUI>
{
public:
    explicit RibbonUiObject(std::function<void()> invalidate);

    [[nodiscard]] std::span<const Member> Members() const override;

    // The host no longer shows this ribbon: later calls do nothing.
    void Disconnect() { m_invalidate = nullptr; }

    STDMETHODIMP Invalidate() override;
    STDMETHODIMP InvalidateControl(BSTR id) override;
    STDMETHODIMP InvalidateControlMso(BSTR id) override;
    STDMETHODIMP ActivateTab(BSTR id) override;
    STDMETHODIMP ActivateTabMso(BSTR id) override;
    STDMETHODIMP ActivateTabQ(BSTR id, BSTR space) override;

private:
    Variant DoInvalidate(const Arguments&);

    std::function<void()> m_invalidate;
};

// The control that a callback is about.
class RibbonControlObject final : public AutomationObject<IRibbonControl>
{
public:
    RibbonControlObject(std::wstring id, std::wstring tag, ComPtr<IDispatch> context);

    [[nodiscard]] std::span<const Member> Members() const override;

    STDMETHODIMP get_Id(BSTR* id) override;
    STDMETHODIMP get_Context(IDispatch** context) override;
    STDMETHODIMP get_Tag(BSTR* tag) override;

private:
    Variant GetId(const Arguments&);
    Variant GetContext(const Arguments&);
    Variant GetTag(const Arguments&);

    std::wstring m_id;
    std::wstring m_tag;
    ComPtr<IDispatch> m_context;
};

} // namespace host
