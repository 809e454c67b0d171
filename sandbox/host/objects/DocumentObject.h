#pragma once

#include "automation/AutomationObject.h"
#include "documents/Document.h"

namespace host
{

class Session;

// An open presentation, and what is left of it once it is closed and still referred to.
class DocumentObject final : public AutomationObject<IDispatch>
{
public:
    DocumentObject(Session& session, Document document);

    [[nodiscard]] std::span<const Member> Members() const override;

    [[nodiscard]] Document& File() { return m_document; }
    [[nodiscard]] Session& Host() { return m_session; }
    void MarkClosed();

    // Tells the add-in first. A never-saved presentation goes into the user's documents folder.
    void Save();
    void SaveAs(const std::wstring& path, long type);

private:
    Value GetApplication(const Arguments&);
    Value GetName(const Arguments&);
    Value GetFullName(const Arguments&);
    Value GetPath(const Arguments&);
    Value GetReadOnly(const Arguments&);
    Value Saved(const Arguments& arguments);
    Value GetFinal(const Arguments&);
    Value GetBuiltIn(const Arguments& arguments);
    Value GetCustom(const Arguments& arguments);
    Value GetWindows(const Arguments&);
    Value DoSave(const Arguments&);
    Value DoSaveAs(const Arguments& arguments);
    Value DoSaveCopyAs(const Arguments& arguments);
    Value DoClose(const Arguments&);

    void CheckOpen() const;
    [[nodiscard]] const SaveFormat& Format(long type) const;
    [[nodiscard]] long TypeArgument(const Arguments& arguments) const;
    [[nodiscard]] SaveFault Fault() const;

    Session& m_session;
    Document m_document;
    bool m_closed = false;
};

// The window that shows a presentation.
class DocumentWindowObject final : public AutomationObject<IDispatch>
{
public:
    explicit DocumentWindowObject(DocumentObject* presentation);

    [[nodiscard]] std::span<const Member> Members() const override;

private:
    Value GetCaption(const Arguments&);
    Value GetPresentation(const Arguments&);
    Value GetActive(const Arguments&);
    Value DoActivate(const Arguments&);

    ComPtr<DocumentObject> m_presentation;
};

} // namespace host
