#include "objects/DocumentWindow.h"

#include "objects/CommandBars.h"

namespace host
{

DocumentWindowObject::DocumentWindowObject(DocumentObject* document, long number)
    : AutomationObject{document->Owner().Model().window.name, document->Owner().Model().window.id},
      m_document{document}, m_number{number}
{}

std::span<const Member> DocumentWindowObject::Members() const
{
    return m_document->Owner().MembersOf(&HostModel::window);
}

std::wstring DocumentWindowObject::Caption() const
{
    const std::wstring name = m_document->Name();
    return m_document->WindowCount() > 1 ? name + L":" + std::to_wstring(m_number) : name;
}

ComPtr<IDispatch> DocumentWindowObject::CommandBars() const { return &m_document->Owner().CommandBars(); }

} // namespace host
