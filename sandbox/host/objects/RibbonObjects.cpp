#include "objects/RibbonObjects.h"

#include "platform/HandOut.h"

namespace host
{

const Member RibbonUiObject::kMembers[] = {
    {1, L"Invalidate", kMethod, Answer<&RibbonUiObject::Ask>},
    {2, L"InvalidateControl", kMethod, Answer<&RibbonUiObject::Ask>},
    {3, L"InvalidateControlMso", kMethod, Answer<&RibbonUiObject::Ask>},
    {4, L"ActivateTab", kMethod, Answer<&RibbonUiObject::Ask>},
    {5, L"ActivateTabMso", kMethod, Answer<&RibbonUiObject::Ask>},
    {6, L"ActivateTabQ", kMethod, Answer<&RibbonUiObject::Ask>},
};

RibbonControlObject::RibbonControlObject(std::wstring id, std::wstring tag, ComPtr<IDispatch> context)
    : AutomationObject{L"IRibbonControl", kMembers}, m_id{std::move(id)}, m_tag{std::move(tag)}, m_context{
                                                                                                     std::move(context)}
{}

const Member RibbonControlObject::kMembers[] = {
    {1, L"Id", kGet, Answer<[](const RibbonControlObject& own) { return own.m_id; }>},
    {2, L"Context", kGet, Answer<[](const RibbonControlObject& own) { return own.m_context; }>},
    {3, L"Tag", kGet, Answer<[](const RibbonControlObject& own) { return own.m_tag; }>},
};

STDMETHODIMP RibbonControlObject::get_Id(BSTR* id) { return corvane::HandOut(m_id, id); }
STDMETHODIMP RibbonControlObject::get_Tag(BSTR* tag) { return corvane::HandOut(m_tag, tag); }
STDMETHODIMP RibbonControlObject::get_Context(IDispatch** context) { return m_context.CopyTo(context); }

} // namespace host
