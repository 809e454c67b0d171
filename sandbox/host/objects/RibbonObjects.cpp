#include "objects/RibbonObjects.h"

namespace host
{
namespace
{

HRESULT GiveText(const std::wstring& text, BSTR* out)
{
    if (!out) return E_POINTER;
    *out = ::SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
    return *out ? S_OK : E_OUTOFMEMORY;
}

} // namespace

RibbonUiObject::RibbonUiObject(std::function<void()> invalidate)
    : AutomationObject{L"IRibbonUI"}, m_invalidate{std::move(invalidate)}
{}

std::span<const Member> RibbonUiObject::Members() const
{
    // Every request has the same effect here: the dynamic controls are read again.
    using R = RibbonUiObject;
    static constexpr Member kMembers[] = {
        {1, L"Invalidate", kMethod, Answer<&R::DoInvalidate>},
        {2, L"InvalidateControl", kMethod, Answer<&R::DoInvalidate>},
        {3, L"InvalidateControlMso", kMethod, Answer<&R::DoInvalidate>},
        {4, L"ActivateTab", kMethod, Answer<&R::DoInvalidate>},
        {5, L"ActivateTabMso", kMethod, Answer<&R::DoInvalidate>},
        {6, L"ActivateTabQ", kMethod, Answer<&R::DoInvalidate>},
    };
    return kMembers;
}

Variant RibbonUiObject::DoInvalidate(const Arguments&)
{
    if (m_invalidate) m_invalidate();
    return {};
}

STDMETHODIMP RibbonUiObject::Invalidate()
{
    const DISPPARAMS none{};
    return Call(1, DISPATCH_METHOD, &none, nullptr, nullptr);
}

STDMETHODIMP RibbonUiObject::InvalidateControl(BSTR) { return Invalidate(); }
STDMETHODIMP RibbonUiObject::InvalidateControlMso(BSTR) { return Invalidate(); }
STDMETHODIMP RibbonUiObject::ActivateTab(BSTR) { return Invalidate(); }
STDMETHODIMP RibbonUiObject::ActivateTabMso(BSTR) { return Invalidate(); }
STDMETHODIMP RibbonUiObject::ActivateTabQ(BSTR, BSTR) { return Invalidate(); }

RibbonControlObject::RibbonControlObject(std::wstring id, std::wstring tag, ComPtr<IDispatch> context)
    : AutomationObject{L"IRibbonControl"}, m_id{std::move(id)}, m_tag{std::move(tag)}, m_context{std::move(context)}
{}

std::span<const Member> RibbonControlObject::Members() const
{
    static constexpr Member kMembers[] = {
        {1, L"Id", kGet, Answer<&RibbonControlObject::GetId>},
        {2, L"Context", kGet, Answer<&RibbonControlObject::GetContext>},
        {3, L"Tag", kGet, Answer<&RibbonControlObject::GetTag>},
    };
    return kMembers;
}

Variant RibbonControlObject::GetId(const Arguments&) { return Variant{m_id}; }
Variant RibbonControlObject::GetContext(const Arguments&) { return Variant{m_context.Get()}; }
Variant RibbonControlObject::GetTag(const Arguments&) { return Variant{m_tag}; }

STDMETHODIMP RibbonControlObject::get_Id(BSTR* id) { return GiveText(m_id, id); }
STDMETHODIMP RibbonControlObject::get_Tag(BSTR* tag) { return GiveText(m_tag, tag); }

STDMETHODIMP RibbonControlObject::get_Context(IDispatch** context)
{
    if (!context) return E_POINTER;
    *context = ComPtr<IDispatch>{m_context}.Detach();
    return S_OK;
}

} // namespace host
