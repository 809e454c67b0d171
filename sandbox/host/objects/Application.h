// The host's application object and its collection of documents.
#pragma once

#include "automation/EventSource.h"
#include "objects/DocumentObject.h"

namespace host
{

// The host's application object with its events.
class ApplicationObject final : public AutomationObject<IDispatch>
{
public:
    explicit ApplicationObject(Session& session);

    [[nodiscard]] void* Interface(REFIID id) override;
    [[nodiscard]] EventSource& Events() { return m_events; }
    [[nodiscard]] Session& Owner() { return m_session; }

    // The answers of the member tables. Where there is no active document or window some hosts fail, others give
    // Nothing.
    const wchar_t* Name() const { return m_session.Facts().name; }
    std::wstring Version() const;
    std::wstring Build() const;
    long BuildNumber() const;
    long WindowHandle() const;
    ComPtr<IDispatch> Documents();
    ComPtr<IDispatch> Windows();
    ComPtr<IDispatch> ActiveWindow() { return ActiveDocument()->Window(1); }
    ComPtr<IDispatch> ActiveWindowOrNothing();
    DocumentObject* ActiveDocument();
    DocumentObject* ActiveDocumentOrNothing() { return m_session.Reachable(); }
    ComPtr<IDispatch> CommandBars();
    ComPtr<IDispatch> ComAddIns();
    void Run(const Arguments& arguments) { m_session.RunMacro(arguments.At(0).Text()); }
    void Quit() { m_session.onQuit(); }
    Variant Interactive(const Arguments& arguments) { return ReadOrWrite(arguments, m_interactive); }
    bool Ready() const { return !m_session.IsEditing(); }
    ComPtr<DocumentObject> CreateItem(const Arguments& arguments);

private:
    Session& m_session;
    EventSource m_events;
    bool m_interactive = true;
};

// The open documents that programs reach.
class DocumentsObject final : public AutomationObject<IDispatch>
{
public:
    explicit DocumentsObject(Session& session);

    [[nodiscard]] Session& Owner() { return m_session; }

    // The answers of the member tables. Open takes the path first and, at this index, whether it is for reading only.
    DocumentObject* Item(const Arguments& arguments) const;
    long Count() const { return static_cast<long>(Reachable().size()); }
    DocumentObject* Add() { return &m_session.New(); }
    template<std::size_t readOnlyIndex>
    DocumentObject* Open(const Arguments& arguments)
    {
        const bool readOnly = arguments.Has(readOnlyIndex) && arguments.At(readOnlyIndex).Number() != 0;
        return &m_session.Open(arguments.At(0).Text(), readOnly);
    }

private:
    [[nodiscard]] std::vector<DocumentObject*> Reachable() const;

    Session& m_session;
};

} // namespace host
