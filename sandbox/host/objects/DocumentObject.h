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
    Value GetApplication(const Arguments&);
    Value GetName(const Arguments&);
    Value GetFullName(const Arguments&);
    Value GetPath(const Arguments&);
    Value GetReadOnly(const Arguments&);
    Value GetReadOnlyState(const Arguments&);
    Value Saved(const Arguments& arguments);
    Value SavedState(const Arguments& arguments);
    Value Final(const Arguments& arguments);
    Value GetHasVBProject(const Arguments&);
    Value GetBuiltIn(const Arguments& arguments);
    Value GetCustom(const Arguments& arguments);
    Value GetWindows(const Arguments&);
    Value GetWindow(const Arguments&);
    Value DoSave(const Arguments&);
    Value DoSaveAs(const Arguments& arguments);
    Value DoSaveCopyAs(const Arguments& arguments);
    Value DoSaveCopyAsItIs(const Arguments& arguments); // takes the name only
    Value DoClose(const Arguments&);
    Value DoCloseSaving(const Arguments& arguments); // saves first when asked to
    Value DoDisplay(const Arguments&);
    Value Subject(const Arguments& arguments) { return Field("Subject", arguments); }
    Value Body(const Arguments& arguments) { return Field("Body", arguments); }
    Value To(const Arguments& arguments) { return Field("To", arguments); }
    Value Copy(const Arguments& arguments) { return Field("CC", arguments); }

private:
    void CheckOpen() const;
    [[nodiscard]] const SaveFormat& Format(std::optional<long> number) const;
    [[nodiscard]] SaveFault Fault() const;
    void PutSaved(const Arguments& arguments);
    Value Field(const char* name, const Arguments& arguments);

    Session& m_session;
    Document m_document;
    bool m_protected;
    long m_windows;
    bool m_closed = false;
    PersistFile m_persistFile{*this};
};

} // namespace host
