// The windows of documents as programs reach them.
#pragma once

#include "objects/DocumentObject.h"

namespace host
{

// A window that shows a document, or a mail item's inspector.
class DocumentWindowObject final : public AutomationObject<IDispatch>
{
public:
    explicit DocumentWindowObject(DocumentObject* document, long number = 1);

    [[nodiscard]] std::span<const Member> Members() const override;

    // The answers of the member tables.
    std::wstring Caption() const;
    DocumentObject* Document() const { return m_document.Get(); }
    bool IsActive() const { return m_number == 1 && m_document->Owner().Active() == m_document.Get(); }
    ComPtr<IDispatch> CommandBars() const;
    void Activate() { m_document->Owner().Activate(*m_document.Get()); }

private:
    ComPtr<DocumentObject> m_document;
    long m_number; // 1 for the first window of the document
};

} // namespace host
