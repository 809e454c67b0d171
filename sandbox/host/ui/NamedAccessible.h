// The accessible object of a named window.
#pragma once

#include <string>

#include <oleacc.h>

#include "automation/AutomationObject.h"

namespace host
{

inline constexpr IID kAccessibleId{0x618736e0, 0x3c3d, 0x11cf, {0x81, 0x0c, 0x00, 0xaa, 0x00, 0x38, 0x9b, 0x71}};

// A window's accessible object but for its name.
class NamedAccessible final : public AutomationObject<IAccessible>
{
public:
    NamedAccessible(ComPtr<IAccessible> window, std::wstring name);

    [[nodiscard]] std::span<const Member> Members() const override { return {}; }

    STDMETHODIMP get_accName(VARIANT child, BSTR* name) override;

    STDMETHODIMP get_accParent(IDispatch** parent) override { return m_window->get_accParent(parent); }
    STDMETHODIMP get_accChildCount(long* count) override { return m_window->get_accChildCount(count); }
    STDMETHODIMP get_accChild(VARIANT at, IDispatch** child) override { return m_window->get_accChild(at, child); }
    STDMETHODIMP get_accValue(VARIANT at, BSTR* text) override { return m_window->get_accValue(at, text); }
    STDMETHODIMP get_accDescription(VARIANT at, BSTR* text) override { return m_window->get_accDescription(at, text); }
    STDMETHODIMP get_accRole(VARIANT at, VARIANT* role) override { return m_window->get_accRole(at, role); }
    STDMETHODIMP get_accState(VARIANT at, VARIANT* state) override { return m_window->get_accState(at, state); }
    STDMETHODIMP get_accHelp(VARIANT at, BSTR* text) override { return m_window->get_accHelp(at, text); }
    STDMETHODIMP get_accHelpTopic(BSTR* file, VARIANT at, long* topic) override
    {
        return m_window->get_accHelpTopic(file, at, topic);
    }
    STDMETHODIMP get_accKeyboardShortcut(VARIANT at, BSTR* text) override
    {
        return m_window->get_accKeyboardShortcut(at, text);
    }
    STDMETHODIMP get_accFocus(VARIANT* child) override { return m_window->get_accFocus(child); }
    STDMETHODIMP get_accSelection(VARIANT* children) override { return m_window->get_accSelection(children); }
    STDMETHODIMP get_accDefaultAction(VARIANT at, BSTR* text) override
    {
        return m_window->get_accDefaultAction(at, text);
    }
    STDMETHODIMP accSelect(long flags, VARIANT at) override { return m_window->accSelect(flags, at); }
    STDMETHODIMP accLocation(long* left, long* top, long* width, long* height, VARIANT at) override
    {
        return m_window->accLocation(left, top, width, height, at);
    }
    STDMETHODIMP accNavigate(long way, VARIANT from, VARIANT* to) override
    {
        return m_window->accNavigate(way, from, to);
    }
    STDMETHODIMP accHitTest(long x, long y, VARIANT* child) override { return m_window->accHitTest(x, y, child); }
    STDMETHODIMP accDoDefaultAction(VARIANT at) override { return m_window->accDoDefaultAction(at); }
    STDMETHODIMP put_accName(VARIANT at, BSTR text) override { return m_window->put_accName(at, text); }
    STDMETHODIMP put_accValue(VARIANT at, BSTR text) override { return m_window->put_accValue(at, text); }

private:
    ComPtr<IAccessible> m_window;
    std::wstring m_name;
};

} // namespace host
