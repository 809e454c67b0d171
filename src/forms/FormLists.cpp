#include "forms/FormLists.h"

#include "forms/TextRuler.h"

#include <commctrl.h>

#include <algorithm>

namespace corvane
{
namespace
{

constexpr LONG kEdgeParts = 8; // one part of an entry's height is for each edge, as in a combo box of the system

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

void FitEntryHeights(HWND form) noexcept
{
    for (HWND combo = nullptr; (combo = ::FindWindowExW(form, combo, WC_COMBOBOXW, nullptr)) != nullptr;) {
        if ((::GetWindowLongPtrW(combo, GWL_STYLE) & CBS_OWNERDRAWFIXED) == 0) continue;
        const LONG line = TextRuler{combo}.Measure(L"0", DT_SINGLELINE, 0).cy;
        const LONG height = line * kEdgeParts / (kEdgeParts - 2);
        for (const WPARAM part : {static_cast<WPARAM>(-1), WPARAM{0}}) // the closed box, the list
            ::SendMessageW(combo, CB_SETITEMHEIGHT, part, height);
    }
}

bool DrawListEntry(const DRAWITEMSTRUCT& entry)
{
    const bool isChosen = (entry.itemState & ODS_SELECTED) != 0;
    const bool isOff = (entry.itemState & ODS_DISABLED) != 0;
    const HDC context = entry.hDC;
    ::FillRect(context, &entry.rcItem,
               ::GetSysColorBrush(isChosen ? COLOR_HIGHLIGHT
                                  : isOff  ? COLOR_BTNFACE
                                           : COLOR_WINDOW));
    if (entry.itemID == static_cast<UINT>(-1)) return false; // none is chosen
    const std::wstring text = ComboEntry(entry.hwndItem, static_cast<int>(entry.itemID));
    RECT room = entry.rcItem;
    ::InflateRect(&room, (room.top - room.bottom) / kEdgeParts, 0);
    ::SetBkMode(context, TRANSPARENT);
    ::SetTextColor(context, ::GetSysColor(isChosen ? COLOR_HIGHLIGHTTEXT : isOff ? COLOR_GRAYTEXT : COLOR_WINDOWTEXT));
    ::DrawTextW(context, text.c_str(), static_cast<int>(text.size()), &room,
                DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
    if ((entry.itemState & (ODS_FOCUS | ODS_NOFOCUSRECT)) == ODS_FOCUS) ::DrawFocusRect(context, &entry.rcItem);
    return TextRuler{entry.hwndItem}.Measure(text, DT_SINGLELINE | DT_NOPREFIX, 0).cx > room.right - room.left;
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
