#include "player/FormReading.h"

#include <cwctype>
#include <map>
#include <optional>

#include <windows.h>

#include <commctrl.h>
#include <oleacc.h>

#include "platform/Owners.h"
#include "player/ControlNames.h"
#include "player/Screen.h"

namespace corvane::player
{
namespace
{

constexpr IID kAccessibleId{0x618736e0, 0x3c3d, 0x11cf, {0x81, 0x0c, 0x00, 0xaa, 0x00, 0x38, 0x9b, 0x71}};

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
    Bstr name;
    return accessible->get_accName(self, name.Put()) == S_OK ? WithoutPairs(name.Text()) : std::wstring{};
}

std::wstring ReadingProblem(HWND form)
{
    std::map<wchar_t, std::wstring> owners;
    std::wstring nameless;
    for (HWND child = ::GetWindow(form, GW_CHILD); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT)) {
        if (!::IsWindowVisible(child)) continue;
        const std::wstring name = ControlNameOf(::GetDlgCtrlID(child));
        if (HasStyle(child, WS_TABSTOP) && SpokenName(child).empty()) nameless = name;
        if (!IsClass(child, WC_STATICW) && !IsClass(child, WC_BUTTONW)) continue;
        const auto key = AccessKeyOf(WindowText(child).value_or(L""));
        if (!key) continue;
        const auto [owner, isNew] = owners.try_emplace(*key, name);
        if (!isNew) return owner->second + L" and " + name + L" have the access key " + *key;
    }
    return nameless.empty() ? L"" : nameless + L" has no name for screen readers";
}

} // namespace corvane::player
