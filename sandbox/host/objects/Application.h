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

private:
    Value GetName(const Arguments&);
    Value GetVersion(const Arguments&);
    Value GetBuild(const Arguments&);
    Value GetWindow(const Arguments&);
    Value GetPresentations(const Arguments&);
    Value GetWindows(const Arguments&);
    Value GetActiveWindow(const Arguments&);
    Value GetActivePresentation(const Arguments&);
    Value GetCommandBars(const Arguments&);
    Value GetComAddIns(const Arguments&);
    Value Run(const Arguments& arguments);
    Value Activate(const Arguments&);

    [[nodiscard]] DocumentObject& Active(const wchar_t* what);

    Session& m_session;
    EventSource m_events;
};

// The open presentations.
class DocumentsObject final : public AutomationObject<IDispatch>
{
public:
    explicit DocumentsObject(Session& session);

    [[nodiscard]] std::span<const Member> Members() const override;

private:
    Value Item(const Arguments& arguments);
    Value Count(const Arguments&);
    Value Add(const Arguments&);
    Value Open(const Arguments& arguments);

    Session& m_session;
};

} // namespace host
