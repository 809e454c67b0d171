#include "player/FormReading.h"

#include <cwctype>
#include <map>
#include <optional>

#include <commctrl.h>
#include <oleauto.h>

#include "automation/Text.h"
#include "player/ControlNames.h"
#include "player/Screen.h"
#include "ui/NamedAccessible.h"

namespace host
{
namespace
{

bool HasStyle(HWND window, DWORD style) { return (::GetWindowLongPtrW(window, GWL_STYLE) & style) != 0; }

std::optional<wchar_t> AccessKeyOf(const std::wstring& text)
{
    std::optional<wchar_t> key;
    for (std::size_t at = 0; (at = text.find(L'&', at)) != std::wstring::npos && at + 1 < text.size(); at += 2)
        if (text[at + 1] != L'&') key = static_cast<wchar_t>(std::towlower(text[at + 1]));
    return key;
}

// Wine's accessible objects take the first "&" of a text for a mark and leave the others as they are.
std::wstring WithoutPairs(std::wstring name)
{
    for (std::size_t at = name.find(L"&&"); at != std::wstring::npos; at = name.find(L"&&", at + 1))
        name.erase(at, 1);
    return name;
}

} // namespace

std::wstring SpokenName(HWND control)
{
    ComPtr<IAccessible> accessible;
    void** const place = reinterpret_cast<void**>(accessible.GetAddressOf());
    if (FAILED(::AccessibleObjectFromWindow(control, static_cast<DWORD>(OBJID_CLIENT), kAccessibleId, place)))
        return {};
    VARIANT self{};
    self.vt = VT_I4;
    BSTR answer = nullptr;
    if (accessible->get_accName(self, &answer) != S_OK) return {};
    const std::wstring name = answer ? answer : L"";
    ::SysFreeString(answer);
    return WithoutPairs(name);
}

std::wstring ReadingProblem(HWND form)
{
    std::map<wchar_t, std::wstring> owners;
    std::wstring nameless;
    for (HWND child = ::GetWindow(form, GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT)) {
        if (!::IsWindowVisible(child)) continue;
        const std::wstring name = Widen(ControlNameOf(::GetDlgCtrlID(child)));
        if (HasStyle(child, WS_TABSTOP) && SpokenName(child).empty()) nameless = name;
        if (!IsClass(child, WC_STATICW) && !IsClass(child, WC_BUTTONW)) continue;
        const auto key = AccessKeyOf(WindowText(child).value_or(L""));
        if (!key) continue;
        const auto [owner, isNew] = owners.try_emplace(*key, name);
        if (!isNew) return owner->second + L" and " + name + L" have the access key " + *key;
    }
    return nameless.empty() ? L"" : nameless + L" has no name for screen readers";
}

} // namespace host
