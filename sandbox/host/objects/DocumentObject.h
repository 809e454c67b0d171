#pragma once

#include <optional>

#include "automation/AutomationObject.h"
#include "documents/Document.h"
#include "objects/PersistFile.h"

namespace host
{

class Session;

// An open document of the host, and what is left of it once it is closed and still referred to: a presentation, a
// document, a workbook or a mail item. Which of the answers it gives, and under which names, is told by the host's
// model.
class DocumentObject final : public AutomationObject<IDispatch>
{
public:
    DocumentObject(Session& session, Document document);

    [[nodiscard]] std::span<const Member> Members() const override;
    [[nodiscard]] void* Interface(REFIID id) override;

    [[nodiscard]] Document& File() { return m_document; }
    [[nodiscard]] Session& Owner() { return m_session; }
    [[nodiscard]] bool IsProtected() const { return m_protected; } // in Protected View, out of programs' reach
    [[nodiscard]] long WindowCount() const { return m_windows; }
    [[nodiscard]] ComPtr<IDispatch> Window(long number);
    void MarkClosed();

    // Tells the add-in first. A never-saved document goes into the user's documents folder where the host does not ask.
    void Save();

    // Without a number: in the format that it has, or the host's default.
    void SaveAs(const std::wstring& path, std::optional<long> format);

    // Writes a copy in the document's own format under just this name.
    void WriteCopy(const std::wstring& path);

    // The answers of the member tables. Saved and ReadOnly are Booleans or, by the ...State ones, numbers of three
    // states.
    Variant GetApplication(const Arguments&);
    Variant GetName(const Arguments&);
    Variant GetFullName(const Arguments&);
    Variant GetPath(const Arguments&);
    Variant GetReadOnly(const Arguments&);
    Variant GetReadOnlyState(const Arguments&);
    Variant Saved(const Arguments& arguments);
    Variant SavedState(const Arguments& arguments);
    Variant Final(const Arguments& arguments);
    Variant GetHasVBProject(const Arguments&);
    Variant GetBuiltIn(const Arguments& arguments);
    Variant GetCustom(const Arguments& arguments);
    Variant GetWindows(const Arguments&);
    Variant GetWindow(const Arguments&);
    Variant DoSave(const Arguments&);
    Variant DoSaveAs(const Arguments& arguments);
    Variant DoSaveCopyAs(const Arguments& arguments);
    Variant DoSaveCopyAsItIs(const Arguments& arguments); // takes the name only
    Variant DoClose(const Arguments&);
    Variant DoCloseSaving(const Arguments& arguments); // saves first when asked to
    Variant DoDisplay(const Arguments&);
    Variant Subject(const Arguments& arguments) { return Field("Subject", arguments); }
    Variant Body(const Arguments& arguments) { return Field("Body", arguments); }
    Variant To(const Arguments& arguments) { return Field("To", arguments); }
    Variant Copy(const Arguments& arguments) { return Field("CC", arguments); }

private:
    void CheckOpen() const;
    [[nodiscard]] const SaveFormat& Format(std::optional<long> number) const;
    [[nodiscard]] SaveFault Fault() const;
    void PutSaved(const Arguments& arguments);
    Variant Field(const char* name, const Arguments& arguments);

    Session& m_session;
    Document m_document;
    bool m_protected;
    long m_windows;
    bool m_closed = false;
    PersistFile m_persistFile{*this};
};

} // namespace host
