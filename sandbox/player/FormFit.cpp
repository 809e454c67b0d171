#include "player/Screen.h"

#include <algorithm>
#include <vector>

#include <commctrl.h>

#include "platform/Owners.h"

namespace corvane::player
{
namespace
{

constexpr wchar_t kEllipsis = L'\x2026';

struct Item
{
    HWND window;
    std::wstring name;
    std::wstring text;
    DWORD style;
    RECT place; // in the form's client area
};

bool Is(const Item& item, const wchar_t* type) { return IsClass(item.window, type); }
bool IsFrame(const Item& item) { return Is(item, WC_BUTTONW) && (item.style & BS_TYPEMASK) == BS_GROUPBOX; }

std::vector<Item> ShownItems(HWND form)
{
    std::vector<Item> items;
    for (HWND child = ::GetWindow(form, GW_CHILD); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT)) {
        if (!::IsWindowVisible(child)) continue;
        RECT place{};
        ::GetWindowRect(child, &place);
        ::MapWindowPoints(nullptr, form, reinterpret_cast<POINT*>(&place), 2);
        items.push_back({child, ControlNameOf(::GetDlgCtrlID(child)), ControlText(child).value_or(L""),
                         static_cast<DWORD>(::GetWindowLongPtrW(child, GWL_STYLE)), place});
    }
    return items;
}

// The size of a text in the control's own font.
SIZE Measure(const Item& item, const std::wstring& text, UINT format, LONG width)
{
    const WindowContext context{item.window};
    const Selected font{context.Get(), reinterpret_cast<HFONT>(Ask(item.window, WM_GETFONT).value_or(0))};
    RECT place{0, 0, width, 0};
    ::DrawTextW(context.Get(), text.c_str(), static_cast<int>(text.size()), &place, DT_CALCRECT | format);
    return {place.right, place.bottom};
}

// The room that the control leaves its text: without edges, a check box's mark, a frame's corners, an arrow.
SIZE RoomOf(const Item& item, int letter)
{
    RECT client{};
    ::GetClientRect(item.window, &client);
    SIZE room{client.right, client.bottom};
    if (Is(item, WC_COMBOBOXW)) room.cx -= ::GetSystemMetrics(SM_CXVSCROLL);
    if (!Is(item, WC_BUTTONW)) return room;
    const DWORD type = item.style & BS_TYPEMASK;
    const bool isMarked = type == BS_AUTOCHECKBOX || type == BS_CHECKBOX;
    room.cx -= isMarked ? ::GetSystemMetrics(SM_CXMENUCHECK) + letter : 2 * letter;
    return room;
}

bool HasRoom(const Item& item)
{
    const int letter = Measure(item, L"0", DT_SINGLELINE, 0).cx;
    const SIZE room = RoomOf(item, letter);
    const bool isLabel = Is(item, WC_STATICW);
    const bool wraps =
        isLabel ? (item.style & SS_ELLIPSISMASK) == 0 : (item.style & ES_MULTILINE) && Is(item, WC_EDITW);
    const UINT literal = isLabel || Is(item, WC_BUTTONW) ? 0U : DT_NOPREFIX;
    const SIZE size = Measure(item, item.text, (wraps ? DT_WORDBREAK : DT_SINGLELINE) | literal, room.cx);
    return size.cx <= room.cx && size.cy <= room.cy;
}

// Whether a whole line of its font fits the control's height.
bool HasLine(const Item& item) { return Measure(item, L"Ay", DT_SINGLELINE, 0).cy <= RoomOf(item, 0).cy; }

// The one line of text that a text box or a combo box shows, in its client area.
RECT LineOf(const Item& item, LONG height)
{
    static RECT line; // lives on: see Ask
    line = {};
    COMBOBOXINFO combo{};
    combo.cbSize = sizeof combo;
    if (::GetComboBoxInfo(item.window, &combo)) {
        line = combo.rcItem;
        line.top += (line.bottom - line.top - height) / 2;
    } else {
        static_cast<void>(Ask(item.window, EM_GETRECT, 0, reinterpret_cast<LPARAM>(&line)));
    }
    line.bottom = line.top + height;
    return line;
}

// Whether the last of what such a box shows are dots: nothing that reaches into the upper half of the line.
bool EndsInDots(const Item& item)
{
    const SIZE dots = Measure(item, L"...", DT_SINGLELINE, 0);
    const RECT line = LineOf(item, dots.cy);
    const WindowContext context{item.window};
    const COLORREF paper = ::GetPixel(context.Get(), line.right - 1, line.top);
    const auto hasInk = [&](LONG column, LONG bottom) {
        for (LONG row = line.top; row < bottom; ++row)
            if (::GetPixel(context.Get(), column, row) != paper) return true;
        return false;
    };
    LONG end = line.right;
    while (end > line.left && !hasInk(end - 1, line.bottom))
        --end;
    bool isLow = end > line.left;
    for (LONG column = end - dots.cx * 2 / 3; column < end; ++column)
        isLow = isLow && !hasInk(column, line.top + dots.cy / 2);
    return isLow;
}

// Of a text that has room: one that ends in an ellipsis is the beginning of another, which the tooltip has.
std::wstring ShorteningProblem(const std::wstring& shown, const std::wstring& tip)
{
    const bool isWhole = shown.empty() || shown.back() != kEllipsis;
    return isWhole || tip.starts_with(shown.substr(0, shown.size() - 1)) ? L"" : L"is shortened without a tooltip";
}

// Each part of a status bar shows its text within its edges; only a shortened one needs the tooltip.
std::wstring StatusProblem(HWND form, const Item& item)
{
    const auto parts = static_cast<int>(Ask(item.window, SB_GETPARTS).value_or(0));
    for (int part = 0; part < parts; ++part) {
        static RECT place; // lives on: see Ask
        static_cast<void>(Ask(item.window, SB_GETRECT, static_cast<WPARAM>(part), reinterpret_cast<LPARAM>(&place)));
        const std::wstring text = PartText(item.window, part).value_or(L"");
        if (Measure(item, text, DT_SINGLELINE | DT_NOPREFIX, 0).cx > place.right - place.left)
            return L"cuts \"" + text + L"\" off";
        std::wstring problem = ShorteningProblem(text, TipOf(form, item.window));
        if (!problem.empty()) return problem;
    }
    return {};
}

std::wstring TextProblem(HWND form, const Item& item)
{
    const bool isChoice = Is(item, WC_COMBOBOXW) && (item.style & CBS_DROPDOWNLIST) == CBS_DROPDOWNLIST;
    const bool isShownText = Is(item, WC_STATICW) || Is(item, WC_BUTTONW) || Is(item, STATUSCLASSNAMEW) ||
                             (Is(item, WC_EDITW) && (item.style & ES_READONLY)) || isChoice;
    const bool takesALine = isShownText || Is(item, WC_EDITW) || Is(item, WC_COMBOBOXW);
    if (takesALine && !IsFrame(item) && !HasLine(item)) return L"is lower than a line of its text";
    if (Is(item, STATUSCLASSNAMEW)) return StatusProblem(form, item);
    if (!isShownText || item.text.empty()) return {};
    const std::wstring tip = WithoutMarks(TipOf(form, item.window));
    const std::wstring shown = WithoutMarks(item.text);
    if (HasRoom(item)) return ShorteningProblem(shown, tip);
    const bool isBox = isChoice || (Is(item, WC_EDITW) && !(item.style & ES_MULTILINE));
    const bool hasKeyboard = FocusOf(::GetWindowThreadProcessId(item.window, nullptr)) == item.window;
    const bool drawsEllipsis =
        (Is(item, WC_STATICW) && (item.style & SS_ELLIPSISMASK)) || (isBox && (hasKeyboard || EndsInDots(item)));
    if (!drawsEllipsis) return L"cuts \"" + item.text + L"\" off";
    const bool tellsAll = tip == shown || tip.starts_with(shown + L"\r\n"); // it may tell more in further lines
    return tellsAll ? L"" : L"cuts \"" + item.text + L"\" off without a tooltip";
}

// The title bar's text stands between the form's frame and the button that closes it.
std::wstring CaptionProblem(HWND form)
{
    const std::wstring caption = WindowText(form).value_or(L"");
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof metrics;
    ::SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
    const WindowContext context{form};
    const UniqueFont font{::CreateFontIndirectW(&metrics.lfCaptionFont)};
    const Selected selected{context.Get(), font.Get()};
    SIZE size{};
    ::GetTextExtentPoint32W(context.Get(), caption.c_str(), static_cast<int>(caption.size()), &size);
    RECT client{};
    ::GetClientRect(form, &client);
    if (size.cx > client.right - ::GetSystemMetrics(SM_CXSIZE)) return L"cuts \"" + caption + L"\" off";
    return ShorteningProblem(caption, TipOf(form, form));
}

bool Holds(const RECT& outer, const RECT& inner)
{
    return inner.left >= outer.left && inner.top >= outer.top && inner.right <= outer.right &&
           inner.bottom <= outer.bottom;
}

std::wstring OverlapProblem(const std::vector<Item>& items)
{
    for (auto one = items.begin(); one != items.end(); ++one) {
        for (auto other = one + 1; other != items.end(); ++other) {
            RECT common{};
            if (!::IntersectRect(&common, &one->place, &other->place)) continue;
            const bool isFramed = (IsFrame(*one) && Holds(one->place, other->place)) ||
                                  (IsFrame(*other) && Holds(other->place, one->place));
            if (!isFramed) return one->name + L" and " + other->name + L" overlap";
        }
    }
    return {};
}

std::wstring OutsideProblem(HWND form, const std::vector<Item>& items)
{
    RECT client{};
    ::GetClientRect(form, &client);
    const auto style = static_cast<DWORD>(::GetWindowLongPtrW(form, GWL_STYLE));
    for (const Item& item : items) {
        RECT place = item.place;
        if (style & WS_HSCROLL) place.left = place.right = 0;
        if (style & WS_VSCROLL) place.top = place.bottom = 0;
        if (!Holds(client, place)) return item.name + L" reaches out of the form";
    }
    return {};
}

std::wstring ScreenProblem(HWND form)
{
    MONITORINFO monitor{};
    monitor.cbSize = sizeof monitor;
    ::GetMonitorInfoW(::MonitorFromWindow(form, MONITOR_DEFAULTTONEAREST), &monitor);
    RECT place{};
    ::GetWindowRect(form, &place);
    return Holds(monitor.rcWork, place) ? L"" : L"the form reaches out of the screen";
}

} // namespace

std::wstring FitProblem(HWND form)
{
    const auto items = ShownItems(form);
    const bool isMessage = IsClass(form, L"#32770"); // the system lays it out, and it has no tooltips
    for (const Item& item : isMessage ? std::vector<Item>{} : items) {
        const std::wstring problem = TextProblem(form, item);
        if (!problem.empty()) return item.name + L" " + problem;
    }
    const std::wstring ofCaption = isMessage ? L"" : CaptionProblem(form);
    if (!ofCaption.empty()) return L"the title bar " + ofCaption;
    for (const std::wstring& problem : {OverlapProblem(items), OutsideProblem(form, items)})
        if (!problem.empty()) return problem;
    return ScreenProblem(form);
}

} // namespace corvane::player
