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
    Value GetName(const Arguments&);
    Value GetVersion(const Arguments&);
    Value GetBuild(const Arguments&);
    Value GetBuildNumber(const Arguments&);
    Value GetWindowHandle(const Arguments&);
    Value GetDocuments(const Arguments&);
    Value GetWindows(const Arguments&);
    Value GetActiveWindow(const Arguments&);
    Value GetActiveWindowOrNothing(const Arguments&);
    Value GetActiveDocument(const Arguments&);
    Value GetActiveDocumentOrNothing(const Arguments&);
    Value GetCommandBars(const Arguments&);
    Value GetComAddIns(const Arguments&);
    Value Run(const Arguments& arguments);
    Value Activate(const Arguments&);
    Value Interactive(const Arguments& arguments);
    Value GetReady(const Arguments&);
    Value CreateItem(const Arguments& arguments);

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
    Value Item(const Arguments& arguments);
    Value Count(const Arguments&);
    Value Add(const Arguments&);
    template<std::size_t readOnlyIndex>
    Value Open(const Arguments& arguments)
    {
        return OpenFile(arguments, arguments.Has(readOnlyIndex) && arguments.At(readOnlyIndex).Number() != 0);
    }

private:
    Value OpenFile(const Arguments& arguments, bool readOnly);
    [[nodiscard]] std::vector<DocumentObject*> Reachable() const;

    Session& m_session;
};

} // namespace host
