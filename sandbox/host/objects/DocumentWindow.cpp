#include "objects/DocumentWindow.h"

#include "objects/CommandBars.h"
#include "objects/HostModel.h"
#include "objects/Session.h"

namespace host
{

DocumentWindowObject::DocumentWindowObject(DocumentObject* document, long number)
    : AutomationObject{document->Owner().Model().window.name, document->Owner().Model().window.id},
      m_document{document}, m_number{number}
{}

std::span<const Member> DocumentWindowObject::Members() const
{
    Session& session = m_document->Owner();
    return session.Model().window.Members(session.Settings().MajorVersion());
}

bool DocumentWindowObject::IsActive() const
{
    return m_number == 1 && m_document->Owner().Active() == m_document.Get();
}

Variant DocumentWindowObject::GetCaption(const Arguments&)
{
    const std::wstring name = m_document->File().Name();
    return Variant{m_document->WindowCount() > 1 ? name + L":" + std::to_wstring(m_number) : name};
}

Variant DocumentWindowObject::GetDocument(const Arguments&) { return Variant{m_document.Get()}; }
Variant DocumentWindowObject::GetActive(const Arguments&) { return Variant{IsActive()}; }
Variant DocumentWindowObject::GetActiveState(const Arguments&) { return TriState(IsActive()); }
Variant DocumentWindowObject::GetCommandBars(const Arguments&) { return Variant{&m_document->Owner().CommandBars()}; }

Variant DocumentWindowObject::DoActivate(const Arguments&)
{
    m_document->Owner().Activate(*m_document.Get());
    return {};
}

} // namespace host
