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

Value DocumentWindowObject::GetCaption(const Arguments&)
{
    const std::wstring name = m_document->File().Name();
    return Value{m_document->WindowCount() > 1 ? name + L":" + std::to_wstring(m_number) : name};
}

Value DocumentWindowObject::GetDocument(const Arguments&) { return Value{m_document.Get()}; }
Value DocumentWindowObject::GetActive(const Arguments&) { return Value::OfBoolean(IsActive()); }
Value DocumentWindowObject::GetActiveState(const Arguments&) { return Value::OfTriState(IsActive()); }
Value DocumentWindowObject::GetCommandBars(const Arguments&) { return Value{&m_document->Owner().CommandBars()}; }

Value DocumentWindowObject::DoActivate(const Arguments&)
{
    m_document->Owner().Activate(*m_document.Get());
    return {};
}

} // namespace host
