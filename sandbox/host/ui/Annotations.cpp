#include "ui/Annotations.h"

#include <map>
#include <string>

#include <commctrl.h>
#include <oleacc.h>

#include "automation/AutomationObject.h"

namespace host
{
namespace
{

constexpr auto kClientObject = static_cast<DWORD>(OBJID_CLIENT);

constexpr UINT_PTR kSubclass = 1;

// A window's accessible object but for its name.
class NamedAccessible final : public AutomationObject<IAccessible>
{
public:
    NamedAccessible(ComPtr<IAccessible> window, std::wstring name)
        : AutomationObject{L"Accessible"}, m_window{std::move(window)}, m_name{std::move(name)}
    {}

    STDMETHODIMP get_accName(VARIANT child, BSTR* name) override
    {
        if (child.vt != VT_I4 || child.lVal != CHILDID_SELF) return m_window->get_accName(child, name);
        return corvane::HandOut(m_name, name);
    }

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

std::map<HWND, std::wstring>& Names()
{
    static std::map<HWND, std::wstring> names;
    return names;
}

LRESULT CALLBACK NamedProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR);

// Wine leaves a subclass that is not removed behind when its window goes.
void Forget(HWND window)
{
    Names().erase(window);
    ::RemoveWindowSubclass(window, NamedProc, kSubclass);
}

// Answers for a named window.
LRESULT CALLBACK NamedProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR)
{
    if (message == WM_NCDESTROY) Forget(window);
    const auto name = Names().find(window);
    if (name == Names().end() || message != WM_GETOBJECT || static_cast<DWORD>(lParam) != kClientObject)
        return ::DefSubclassProc(window, message, wParam, lParam);
    ComPtr<IAccessible> own;
    void** const place = reinterpret_cast<void**>(own.GetAddressOf());
    if (FAILED(::CreateStdAccessibleObject(window, OBJID_CLIENT, __uuidof(IAccessible), place))) return 0;
    return ::LresultFromObject(__uuidof(IAccessible), wParam, MakeObject<NamedAccessible>(own, name->second).Get());
}

// As much of the system's service as names of windows need. Lives as long as the process; the count is not kept.
class Service final : public IAccPropServices
{
public:
    STDMETHODIMP QueryInterface(REFIID id, void** object) override
    {
        *object = id == IID_IUnknown || id == IID_IAccPropServices ? this : nullptr;
        return *object ? S_OK : E_NOINTERFACE;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return 2; }
    STDMETHODIMP_(ULONG) Release() override { return 1; }

    STDMETHODIMP SetHwndPropStr(HWND window, DWORD object, DWORD child, MSAAPROPID property, LPCWSTR text) override
    {
        if (object != kClientObject || child != CHILDID_SELF || property != PROPID_ACC_NAME || !text)
            return E_INVALIDARG;
        Names()[window] = text;
        return ::SetWindowSubclass(window, NamedProc, kSubclass, 0) ? S_OK : E_FAIL;
    }
    STDMETHODIMP ClearHwndProps(HWND window, DWORD, DWORD, const MSAAPROPID*, int) override
    {
        Forget(window);
        return S_OK;
    }

    STDMETHODIMP SetPropValue(const BYTE*, DWORD, MSAAPROPID, VARIANT) override { return E_NOTIMPL; }
    STDMETHODIMP SetPropServer(const BYTE*, DWORD, const MSAAPROPID*, int, IAccPropServer*, AnnoScope) override
    {
        return E_NOTIMPL;
    }
    STDMETHODIMP ClearProps(const BYTE*, DWORD, const MSAAPROPID*, int) override { return E_NOTIMPL; }
    STDMETHODIMP SetHwndProp(HWND, DWORD, DWORD, MSAAPROPID, VARIANT) override { return E_NOTIMPL; }
    STDMETHODIMP SetHwndPropServer(HWND, DWORD, DWORD, const MSAAPROPID*, int, IAccPropServer*, AnnoScope) override
    {
        return E_NOTIMPL;
    }
    STDMETHODIMP ComposeHwndIdentityString(HWND, DWORD, DWORD, BYTE**, DWORD*) override { return E_NOTIMPL; }
    STDMETHODIMP DecomposeHwndIdentityString(const BYTE*, DWORD, HWND*, DWORD*, DWORD*) override { return E_NOTIMPL; }
    STDMETHODIMP SetHmenuProp(HMENU, DWORD, MSAAPROPID, VARIANT) override { return E_NOTIMPL; }
    STDMETHODIMP SetHmenuPropStr(HMENU, DWORD, MSAAPROPID, LPCWSTR) override { return E_NOTIMPL; }
    STDMETHODIMP SetHmenuPropServer(HMENU, DWORD, const MSAAPROPID*, int, IAccPropServer*, AnnoScope) override
    {
        return E_NOTIMPL;
    }
    STDMETHODIMP ClearHmenuProps(HMENU, DWORD, const MSAAPROPID*, int) override { return E_NOTIMPL; }
    STDMETHODIMP ComposeHmenuIdentityString(HMENU, DWORD, BYTE**, DWORD*) override { return E_NOTIMPL; }
    STDMETHODIMP DecomposeHmenuIdentityString(const BYTE*, DWORD, HMENU*, DWORD*) override { return E_NOTIMPL; }
};

bool DoesSystemAnnotate(HWND window)
{
    ComPtr<IAccPropServices> service;
    void** const place = reinterpret_cast<void**>(service.GetAddressOf());
    if (FAILED(::CoCreateInstance(CLSID_AccPropServices, nullptr, CLSCTX_INPROC_SERVER, IID_IAccPropServices, place)))
        return false;
    if (FAILED(service->SetHwndPropStr(window, kClientObject, CHILDID_SELF, PROPID_ACC_NAME, L""))) return false;
    service->ClearHwndProps(window, kClientObject, CHILDID_SELF, &PROPID_ACC_NAME, 1);
    return true;
}

} // namespace

Annotations::Annotations(HWND window)
{
    if (DoesSystemAnnotate(window)) return;
    m_service.emplace(CLSID_AccPropServices, [](REFIID id, void** object) {
        static Service service;
        return service.QueryInterface(id, object);
    });
}

} // namespace host
