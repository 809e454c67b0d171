#include "objects/RibbonObjects.h"

#include "platform/HandOut.h"

namespace host
{

std::span<const Member> RibbonUiObject::Members() const
{
    constexpr auto* kAsk = &Answer<[](RibbonUiObject& ribbon) {
        if (ribbon.m_invalidate) ribbon.m_invalidate();
    }>;
    static constexpr Member kMembers[] = {
        {1, L"Invalidate", kMethod, kAsk},           {2, L"InvalidateControl", kMethod, kAsk},
        {3, L"InvalidateControlMso", kMethod, kAsk}, {4, L"ActivateTab", kMethod, kAsk},
        {5, L"ActivateTabMso", kMethod, kAsk},       {6, L"ActivateTabQ", kMethod, kAsk},
    };
    return kMembers;
}

RibbonControlObject::RibbonControlObject(std::wstring id, std::wstring tag, ComPtr<IDispatch> context)
    : AutomationObject{L"IRibbonControl"}, m_id{std::move(id)}, m_tag{std::move(tag)}, m_context{std::move(context)}
{}

std::span<const Member> RibbonControlObject::Members() const
{
    using C = RibbonControlObject;
    static constexpr Member kMembers[] = {
        {1, L"Id", kGet, Answer<[](const C& own) { return own.m_id; }>},
        {2, L"Context", kGet, Answer<[](const C& own) { return own.m_context; }>},
        {3, L"Tag", kGet, Answer<[](const C& own) { return own.m_tag; }>},
    };
    return kMembers;
}

STDMETHODIMP RibbonControlObject::get_Id(BSTR* id) { return corvane::HandOut(m_id, id); }
STDMETHODIMP RibbonControlObject::get_Tag(BSTR* tag) { return corvane::HandOut(m_tag, tag); }
STDMETHODIMP RibbonControlObject::get_Context(IDispatch** context) { return m_context.CopyTo(context); }

} // namespace host
