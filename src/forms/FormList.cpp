#include "forms/FormList.h"

#include "forms/TextRuler.h"

#include <commctrl.h>

#include <algorithm>

namespace corvane
{

// The messages of one kind of list. Both kinds answer an error with the same number.
struct ListMessages
{
    UINT clear;
    UINT add;
    UINT count;
    UINT textLength;
    UINT text;
    UINT number;
    UINT setNumber;
    UINT selected;
    UINT select;
    UINT width;
    UINT setWidth;
};
static_assert(CB_ERR == LB_ERR);

namespace
{

constexpr ListMessages kComboBox{CB_RESETCONTENT, CB_ADDSTRING,       CB_GETCOUNT,       CB_GETLBTEXTLEN,
                                 CB_GETLBTEXT,    CB_GETITEMDATA,     CB_SETITEMDATA,    CB_GETCURSEL,
                                 CB_SETCURSEL,    CB_GETDROPPEDWIDTH, CB_SETDROPPEDWIDTH};
constexpr ListMessages kListBox{LB_RESETCONTENT, LB_ADDSTRING,           LB_GETCOUNT,           LB_GETTEXTLEN,
                                LB_GETTEXT,      LB_GETITEMDATA,         LB_SETITEMDATA,        LB_GETCURSEL,
                                LB_SETCURSEL,    LB_GETHORIZONTALEXTENT, LB_SETHORIZONTALEXTENT};

constexpr LONG kEdgeParts = 8; // one part of an entry's height is for each edge, as in a combo box of the system

const ListMessages& MessagesOf(HWND control) noexcept
{
    wchar_t name[16] = L"";
    ::GetClassNameW(control, name, static_cast<int>(std::size(name)));
    return ::lstrcmpiW(name, WC_COMBOBOXW) == 0 ? kComboBox : kListBox;
}

} // namespace

FormList::FormList(HWND control) noexcept : m_control{control}, m_messages{MessagesOf(control)} {}

LRESULT FormList::Send(UINT message, int position, LPARAM data) const noexcept
{
    return ::SendMessageW(m_control, message, static_cast<WPARAM>(position), data);
}

void FormList::Clear() const noexcept { Send(m_messages.clear); }

int FormList::Add(const std::wstring& text, std::int32_t number) const noexcept
{
    WidenFor(text);
    const auto position = static_cast<int>(Send(m_messages.add, 0, reinterpret_cast<LPARAM>(text.c_str())));
    Send(m_messages.setNumber, position, number);
    return position;
}

void FormList::WidenFor(const std::wstring& text) const noexcept
{
    const TextRuler ruler{m_control};
    const int edges = 2 * static_cast<int>(ruler.Measure(L"0", DT_SINGLELINE, 0).cx);
    const int scrollBar = &m_messages == &kComboBox ? ::GetSystemMetrics(SM_CXVSCROLL) : 0;
    const int width = static_cast<int>(ruler.Measure(text, DT_SINGLELINE | DT_NOPREFIX, 0).cx) + edges + scrollBar;
    Send(m_messages.setWidth, std::max(static_cast<int>(Send(m_messages.width)), width));
}

std::wstring FormList::Text(int position) const
{
    std::wstring text(static_cast<std::size_t>(Send(m_messages.textLength, position)) + 1, L'\0');
    Send(m_messages.text, position, reinterpret_cast<LPARAM>(text.data()));
    text.pop_back(); // the terminator
    return text;
}

std::int32_t FormList::Number(int position) const noexcept
{
    return static_cast<std::int32_t>(Send(m_messages.number, position));
}

int FormList::Count() const noexcept { return static_cast<int>(Send(m_messages.count)); }

std::optional<int> FormList::Find(const std::function<bool(const std::wstring&)>& isWanted) const
{
    for (int position = 0; position < Count(); ++position)
        if (isWanted(Text(position))) return position;
    return std::nullopt;
}

std::optional<int> FormList::Selected() const noexcept
{
    const auto position = static_cast<int>(Send(m_messages.selected));
    return position == LB_ERR ? std::nullopt : std::optional{position};
}

bool FormList::Select(int position) const noexcept { return Send(m_messages.select, position) != LB_ERR; }

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
    const std::wstring text = FormList{entry.hwndItem}.Text(static_cast<int>(entry.itemID));
    RECT room = entry.rcItem;
    ::InflateRect(&room, (room.top - room.bottom) / kEdgeParts, 0);
    ::SetBkMode(context, TRANSPARENT);
    ::SetTextColor(context, ::GetSysColor(isChosen ? COLOR_HIGHLIGHTTEXT : isOff ? COLOR_GRAYTEXT : COLOR_WINDOWTEXT));
    ::DrawTextW(context, text.c_str(), static_cast<int>(text.size()), &room,
                DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
    if ((entry.itemState & (ODS_FOCUS | ODS_NOFOCUSRECT)) == ODS_FOCUS) ::DrawFocusRect(context, &entry.rcItem);
    return TextRuler{entry.hwndItem}.Measure(text, DT_SINGLELINE | DT_NOPREFIX, 0).cx > room.right - room.left;
}

} // namespace corvane
