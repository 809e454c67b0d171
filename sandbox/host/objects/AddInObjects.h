// What the host hands to its add-ins: their registration, the ribbon and its controls.
#pragma once

#include "automation/AutomationObject.h"
#include "automation/OfficeInterfaces.h"

#include <functional>

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

    std::function<void()> onDisconnect; // what a program does that switches the add-in off

private:
    static const Member kMembers[5];

    bool Connect(const Arguments& arguments);
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

// The ribbon: asks the host to read dynamic controls again. Every request has the same effect here.
class RibbonUiObject final : public AutomationObject<IRibbonUI>
{
public:
    explicit RibbonUiObject(std::function<void()> invalidate)
        : AutomationObject{L"IRibbonUI", kMembers}, m_invalidate{std::move(invalidate)}
    {}

    // The host no longer shows this ribbon: later calls do nothing.
    void Disconnect() { m_invalidate = nullptr; }

    STDMETHODIMP Invalidate() override { return Call(1, DISPATCH_METHOD, nullptr, nullptr, nullptr); }
    STDMETHODIMP InvalidateControl(BSTR) override { return Invalidate(); }
    STDMETHODIMP InvalidateControlMso(BSTR) override { return Invalidate(); }
    STDMETHODIMP ActivateTab(BSTR) override { return Invalidate(); }
    STDMETHODIMP ActivateTabMso(BSTR) override { return Invalidate(); }
    STDMETHODIMP ActivateTabQ(BSTR, BSTR) override { return Invalidate(); }

private:
    static const Member kMembers[1];

    void Ask()
    {
        if (m_invalidate) m_invalidate();
    }

    std::function<void()> m_invalidate;
};

// The control that a callback is about.
class RibbonControlObject final : public AutomationObject<IRibbonControl>
{
public:
    RibbonControlObject(std::wstring id, std::wstring tag, ComPtr<IDispatch> context);

    STDMETHODIMP get_Id(BSTR* id) override;
    STDMETHODIMP get_Context(IDispatch** context) override;
    STDMETHODIMP get_Tag(BSTR* tag) override;

private:
    static const Member kMembers[3];

    std::wstring m_id;
    std::wstring m_tag;
    ComPtr<IDispatch> m_context;
};

} // namespace host
