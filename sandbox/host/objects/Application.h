#pragma once

#include "automation/EventSource.h"
#include "objects/DocumentObject.h"

namespace host
{

class Session;

// The host's application object with its events.
class ApplicationObject final : public AutomationObject<IDispatch>
{
public:
    explicit ApplicationObject(Session& session);

    [[nodiscard]] std::span<const Member> Members() const override;
    [[nodiscard]] void* Interface(REFIID id) override;
    [[nodiscard]] EventSource& Events() { return m_events; }
    [[nodiscard]] Session& Owner() { return m_session; }

    // The answers of the member tables. Where there is no active document or window some hosts fail, others give
    // Nothing.
    Variant GetName(const Arguments&);
    Variant GetVersion(const Arguments&);
    Variant GetBuild(const Arguments&);
    Variant GetBuildNumber(const Arguments&);
    Variant GetWindowHandle(const Arguments&);
    Variant GetDocuments(const Arguments&);
    Variant GetWindows(const Arguments&);
    Variant GetActiveWindow(const Arguments&);
    Variant GetActiveWindowOrNothing(const Arguments&);
    Variant GetActiveDocument(const Arguments&);
    Variant GetActiveDocumentOrNothing(const Arguments&);
    Variant GetCommandBars(const Arguments&);
    Variant GetComAddIns(const Arguments&);
    Variant Run(const Arguments& arguments);
    Variant Activate(const Arguments&);
    Variant Interactive(const Arguments& arguments);
    Variant GetReady(const Arguments&);
    Variant CreateItem(const Arguments& arguments);

private:
    [[nodiscard]] DocumentObject& ActiveOrFail();

    Session& m_session;
    EventSource m_events;
    bool m_interactive = true;
};

// The open documents that programs reach.
class DocumentsObject final : public AutomationObject<IDispatch>
{
public:
    explicit DocumentsObject(Session& session);

    [[nodiscard]] std::span<const Member> Members() const override;
    [[nodiscard]] Session& Owner() { return m_session; }

    // The answers of the member tables. Open takes the path first and, at this index, whether it is for reading only.
    Variant Item(const Arguments& arguments);
    Variant Count(const Arguments&);
    Variant Add(const Arguments&);
    template<std::size_t readOnlyIndex>
    Variant Open(const Arguments& arguments)
    {
        return OpenFile(arguments, arguments.Has(readOnlyIndex) && arguments.At(readOnlyIndex).Number() != 0);
    }

private:
    Variant OpenFile(const Arguments& arguments, bool readOnly);
    [[nodiscard]] std::vector<DocumentObject*> Reachable() const;

    Session& m_session;
};

} // namespace host
