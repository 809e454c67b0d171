// An open document and its windows as programs reach them.
#pragma once

#include "automation/AutomationObject.h"
#include "documents/Document.h"
#include "objects/Session.h"

#include <objidl.h>

#include <optional>

namespace host
{

enum class PropertySet
{
    BuiltIn,
    Custom,
};

class DocumentObject;

// A document of Word as an object that lives in a file: copies of it can be written. Part of its document, whose
// references it shares.
class PersistFile final : public IPersistFile
{
public:
    explicit PersistFile(DocumentObject& document) : m_document{document} {}

    STDMETHODIMP QueryInterface(REFIID id, void** object) override;
    STDMETHODIMP_(ULONG) AddRef() override;
    STDMETHODIMP_(ULONG) Release() override;
    STDMETHODIMP GetClassID(CLSID*) override { return E_NOTIMPL; }
    STDMETHODIMP IsDirty() override;
    STDMETHODIMP Load(LPCOLESTR, DWORD) override { return E_NOTIMPL; }
    // Only copies: the document stays where it is.
    STDMETHODIMP Save(LPCOLESTR path, BOOL remember) override;
    STDMETHODIMP SaveCompleted(LPCOLESTR) override { return S_OK; }
    STDMETHODIMP GetCurFile(LPOLESTR*) override { return E_NOTIMPL; }

private:
    DocumentObject& m_document;
};

// An open document of the host, and what is left of it once it is closed and still referred to: a presentation, a
// document, a workbook or a mail item. Which of the answers it gives, and under which names, is told by the host's
// model.
class DocumentObject final : public AutomationObject<IDispatch>
{
public:
    DocumentObject(Session& session, Document document);

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

    // The answers of the member tables.
    ApplicationObject* Application() { return &m_session.Application(); }
    std::wstring Name() const { return m_document.Name(); }
    std::wstring FullName() const { return m_document.FullName(); }
    std::wstring Path() const { return m_document.Folder(); }
    bool IsReadOnly() const { return m_document.IsReadOnly(); }
    Variant Saved(const Arguments& arguments);
    Variant Final(const Arguments& arguments);
    bool HasVBProject();
    Variant BuiltIn(const Arguments& arguments) { return Properties(PropertySet::BuiltIn, arguments); }
    Variant Custom(const Arguments& arguments) { return Properties(PropertySet::Custom, arguments); }
    ComPtr<IDispatch> Windows();
    ComPtr<IDispatch> FirstWindow() { return Window(1); }
    void SaveUnder(const Arguments& arguments);
    void SaveCopyAs(const Arguments& arguments);
    void SaveCopyAsItIs(const Arguments& arguments); // takes the name only
    void Close() { m_session.Close(Opened()); }
    void CloseSaving(const Arguments& arguments); // saves first when asked to
    void Display() { m_session.Display(Opened()); }
    Variant Subject(const Arguments& arguments) { return Field("Subject", arguments); }
    Variant Body(const Arguments& arguments) { return Field("Body", arguments); }
    Variant To(const Arguments& arguments) { return Field("To", arguments); }
    Variant Copy(const Arguments& arguments) { return Field("CC", arguments); }

private:
    [[nodiscard]] DocumentObject& Opened(); // itself; throws once it is closed
    [[nodiscard]] const SaveFormat& Format(std::optional<long> number) const;
    [[nodiscard]] SaveFault Fault() const;
    Variant Properties(PropertySet set, const Arguments& arguments);
    Variant Field(const char* name, const Arguments& arguments);

    Session& m_session;
    Document m_document;
    bool m_protected;
    long m_windows;
    bool m_closed = false;
    PersistFile m_persistFile{*this};
};

// A window that shows a document, or a mail item's inspector.
class DocumentWindowObject final : public AutomationObject<IDispatch>
{
public:
    explicit DocumentWindowObject(DocumentObject* document, long number = 1);

    // The answers of the member tables.
    std::wstring Caption() const;
    DocumentObject* Document() const { return m_document.Get(); }
    void Activate() { m_document->Owner().Activate(*m_document.Get()); }
    ComPtr<IDispatch> CommandBars() const;

private:
    ComPtr<DocumentObject> m_document;
    long m_number; // 1 for the first window of the document
};

} // namespace host
