#include "platform/FormLists.h"

#include "platform/TextRuler.h"

#include <commctrl.h>

#include <algorithm>

namespace corvane
{
namespace
{

// Puts the width that the entries need into a message that asks for it and one that sets it.
void Widen(HWND list, int width, UINT get, UINT set) noexcept
{
    const auto now = static_cast<int>(::SendMessageW(list, get, 0, 0));
    ::SendMessageW(list, set, static_cast<WPARAM>(std::max(now, width)), 0);
}

} // namespace

int AddListEntry(HWND list, const std::wstring& text) noexcept
{
    wchar_t name[16] = L"";
    ::GetClassNameW(list, name, static_cast<int>(std::size(name)));
    const bool isCombo = ::lstrcmpiW(name, WC_COMBOBOXW) == 0;
    const TextRuler ruler{list};
    const int edges = 2 * static_cast<int>(ruler.Measure(L"0", DT_SINGLELINE, 0).cx);
    const int width = static_cast<int>(ruler.Measure(text, DT_SINGLELINE | DT_NOPREFIX, 0).cx) + edges;
    if (isCombo)
        Widen(list, width + ::GetSystemMetrics(SM_CXVSCROLL), CB_GETDROPPEDWIDTH, CB_SETDROPPEDWIDTH);
    else
        Widen(list, width, LB_GETHORIZONTALEXTENT, LB_SETHORIZONTALEXTENT);
    return static_cast<int>(
        ::SendMessageW(list, isCombo ? CB_ADDSTRING : LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text.c_str())));
}

std::wstring ComboEntry(HWND combo, int index)
{
    const auto entry = static_cast<WPARAM>(index);
    std::wstring text(static_cast<std::size_t>(::SendMessageW(combo, CB_GETLBTEXTLEN, entry, 0)) + 1, L'\0');
    ::SendMessageW(combo, CB_GETLBTEXT, entry, reinterpret_cast<LPARAM>(text.data()));
    text.pop_back(); // the terminator
    return text;
}

} // namespace corvane
