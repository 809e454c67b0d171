// The registered add-ins, as shown to the add-ins themselves and to programs.
#pragma once

#include "automation/AutomationObject.h"

namespace host
{

class Session;

// What the host knows of one registered add-in.
class ComAddInObject final : public AutomationObject<IDispatch>
{
public:
    ComAddInObject(std::wstring progId, std::wstring description);

    [[nodiscard]] const std::wstring& ProgId() const { return m_progId; }
    void SetClass(REFCLSID classId) { m_classId = classId; }
    void SetConnected(bool connected) { m_connected = connected; }

    // Forgets the object that the add-in offers to programs.
    void DropOffered() { m_offered.Reset(); }

private:
    static const Member kMembers[5];

    Variant Offered(const Arguments& arguments);

    std::wstring m_progId;
    std::wstring m_description;
    CLSID m_classId{};
    bool m_connected = false;
    ComPtr<IDispatch> m_offered;
};

// The registered add-ins, by position or ProgID.
class ComAddInsObject final : public AutomationObject<IDispatch>
{
public:
    explicit ComAddInsObject(Session& session);

private:
    static const Member kMembers[2];

    Session& m_session;
};

} // namespace host
