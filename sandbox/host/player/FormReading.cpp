#include "player/FormReading.h"

#include <cwctype>
#include <map>
#include <optional>

#include <commctrl.h>
#include <oleacc.h>
#include <oleauto.h>
#include <wrl/client.h>

#include "automation/Text.h"
#include "player/ControlNames.h"
#include "player/Screen.h"

namespace host
{
namespace
{

using Microsoft::WRL::ComPtr;

constexpr IID kAccessible{0x618736e0, 0x3c3d, 0x11cf, {0x81, 0x0c, 0x00, 0xaa, 0x00, 0x38, 0x9b, 0x71}};

bool HasStyle(HWND window, DWORD style) { return (::GetWindowLongPtrW(window, GWL_STYLE) & style) != 0; }

// The text without access-key marks, and its access key.
struct Reading
{
    std::wstring text;
    std::optional<wchar_t> key;
};

Reading Read(const std::wstring& text)
{
    Reading reading;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const bool isMark = text[at] == L'&' && at + 1 < text.size();
        if (isMark && text[++at] != L'&') reading.key = static_cast<wchar_t>(std::towlower(text[at]));
        reading.text += text[at];
    }
    return reading;
}

// Wine's accessible objects take the first "&" of a text for a mark and leave the others as they are.
std::wstring WithoutPairs(std::wstring name)
{
    for (std::size_t at = name.find(L"&&"); at != std::wstring::npos; at = name.find(L"&&", at + 1))
        name.erase(at, 1);
    return name;
}

// What the system's own accessible object answers.
std::wstring AccessibleName(HWND control)
{
    ComPtr<IAccessible> accessible;
    void** const place = reinterpret_cast<void**>(accessible.GetAddressOf());
    if (FAILED(::AccessibleObjectFromWindow(control, static_cast<DWORD>(OBJID_CLIENT), kAccessible, place))) return {};
    VARIANT self{};
    self.vt = VT_I4;
    BSTR answer = nullptr;
    if (accessible->get_accName(self, &answer) != S_OK) return {};
    const std::wstring name = answer ? answer : L"";
    ::SysFreeString(answer);
    return name;
}

// The rule by which the system names inputs without a text of their own: by the static text before them, with no tab
// stop in between.
std::wstring LabelOf(HWND control)
{
    for (HWND before = ::GetWindow(control, GW_HWNDPREV); before; before = ::GetWindow(before, GW_HWNDPREV)) {
        if (Ask(before, WM_GETDLGCODE).value_or(0) & DLGC_STATIC) return WindowText(before).value_or(L"");
        if (HasStyle(before, WS_TABSTOP | WS_GROUP)) break;
    }
    return {};
}

} // namespace

std::wstring SpokenName(HWND control)
{
    // Wine's accessible objects of lists, combo boxes and trees leave the label to their reader.
    const std::wstring name = IsClass(control, WC_COMBOBOXW) ? L"" : AccessibleName(control);
    return name.empty() ? Read(LabelOf(control)).text : WithoutPairs(name);
}

std::wstring ReadingProblem(HWND form)
{
    std::map<wchar_t, std::wstring> owners;
    for (HWND child = ::GetWindow(form, GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT)) {
        if (!::IsWindowVisible(child)) continue;
        const std::wstring name = Widen(ControlNameOf(::GetDlgCtrlID(child)));
        if (HasStyle(child, WS_TABSTOP) && SpokenName(child).empty()) return name + L" has no name for screen readers";
        if (!IsClass(child, WC_STATICW) && !IsClass(child, WC_BUTTONW)) continue;
        const auto key = Read(WindowText(child).value_or(L"")).key;
        if (!key) continue;
        const auto [owner, isNew] = owners.try_emplace(*key, name);
        if (!isNew) return owner->second + L" and " + name + L" have the access key " + *key;
    }
    return {};
}

} // namespace host
