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
    Variant GetCaption(const Arguments&);
    Variant GetDocument(const Arguments&);
    Variant GetActive(const Arguments&);
    Variant GetActiveState(const Arguments&);
    Variant GetCommandBars(const Arguments&);
    Variant DoActivate(const Arguments&);

private:
    [[nodiscard]] bool IsActive() const;

    ComPtr<DocumentObject> m_document;
    long m_number; // 1 for the first window of the document
};

} // namespace host
