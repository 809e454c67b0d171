#include "forms/FormScroll.h"

#include <commctrl.h>

#include <algorithm>
#include <utility>

namespace corvane
{
namespace
{

constexpr UINT_PTR kFocusSubclass = 2;
constexpr int kLinesAPage = 8;

Extent WindowSize(HWND window) noexcept
{
    RECT place{};
    ::GetWindowRect(window, &place);
    return {place.right - place.left, place.bottom - place.top};
}

Extent ClientSize(HWND window) noexcept
{
    RECT place{};
    ::GetClientRect(window, &place);
    return {place.right, place.bottom};
}

void Resize(HWND form, const Extent& size) noexcept
{
    ::SetWindowPos(form, nullptr, 0, 0, size.width, size.height,
                   SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
}

void SetStyle(HWND form, DWORD bars) noexcept
{
    const auto style = static_cast<DWORD>(::GetWindowLongPtrW(form, GWL_STYLE));
    const DWORD wanted = (style & ~static_cast<DWORD>(WS_HSCROLL | WS_VSCROLL)) | bars;
    ::SetWindowLongPtrW(form, GWL_STYLE, static_cast<LONG_PTR>(wanted));
}

SCROLLINFO StateOf(HWND form, int bar) noexcept
{
    SCROLLINFO state{};
    state.cbSize = sizeof state;
    state.fMask = SIF_ALL;
    ::GetScrollInfo(form, bar, &state);
    return state;
}

void SetRange(HWND form, int bar, int content, int page) noexcept
{
    SCROLLINFO state{};
    state.cbSize = sizeof state;
    state.fMask = SIF_RANGE | SIF_PAGE | SIF_POS;
    state.nMax = content - 1;
    state.nPage = static_cast<UINT>(page);
    ::SetScrollInfo(form, bar, &state, TRUE);
}

void ScrollTo(HWND form, int bar, int position) noexcept
{
    SCROLLINFO state = StateOf(form, bar);
    const int before = state.nPos;
    state.fMask = SIF_POS;
    state.nPos = position;
    ::SetScrollInfo(form, bar, &state, TRUE);
    const int moved = before - StateOf(form, bar).nPos; // within its range
    ::ScrollWindowEx(form, bar == SB_HORZ ? moved : 0, bar == SB_VERT ? moved : 0, nullptr, nullptr, nullptr, nullptr,
                     SW_SCROLLCHILDREN | SW_INVALIDATE | SW_ERASE);
}

int PositionFor(const SCROLLINFO& state, WORD request) noexcept
{
    const int page = static_cast<int>(state.nPage);
    switch (request) {
    case SB_LINEUP:
        return state.nPos - page / kLinesAPage;
    case SB_LINEDOWN:
        return state.nPos + page / kLinesAPage;
    case SB_PAGEUP:
        return state.nPos - page;
    case SB_PAGEDOWN:
        return state.nPos + page;
    case SB_TOP:
        return state.nMin;
    case SB_BOTTOM:
        return state.nMax;
    case SB_THUMBTRACK:
    case SB_THUMBPOSITION:
        return state.nTrackPos;
    default:
        return state.nPos;
    }
}

bool Scrolls(HWND form, DWORD bar) noexcept
{
    return (static_cast<DWORD>(::GetWindowLongPtrW(form, GWL_STYLE)) & bar) != 0;
}

// Brings a control into view.
void Reveal(HWND form, HWND control) noexcept
{
    RECT place{};
    ::GetWindowRect(control, &place);
    ::MapWindowPoints(nullptr, form, reinterpret_cast<POINT*>(&place), 2);
    const auto reveal = [&](DWORD style, int bar, int start, int end) {
        if (!Scrolls(form, style)) return;
        const SCROLLINFO state = StateOf(form, bar);
        const int page = static_cast<int>(state.nPage);
        ScrollTo(form, bar, PositionToShow(state.nPos, page, start + state.nPos, end + state.nPos));
    };
    reveal(WS_VSCROLL, SB_VERT, place.top, place.bottom);
    reveal(WS_HSCROLL, SB_HORZ, place.left, place.right);
}

} // namespace

LRESULT CALLBACK FormScroll::FocusProcedure(HWND control, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                            DWORD_PTR form) noexcept
{
    if (message == WM_SETFOCUS) Reveal(reinterpret_cast<HWND>(form), control);
    if (message == WM_NCDESTROY) ::RemoveWindowSubclass(control, &FormScroll::FocusProcedure, kFocusSubclass);
    return ::DefSubclassProc(control, message, wParam, lParam);
}

BOOL CALLBACK FormScroll::WatchFocus(HWND control, LPARAM form) noexcept
{
    return ::SetWindowSubclass(control, &FormScroll::FocusProcedure, kFocusSubclass, static_cast<DWORD_PTR>(form));
}

void FormScroll::Cut(HWND form, const Extent& most) noexcept
{
    const Extent whole = WindowSize(form);
    if (whole.width <= most.width && whole.height <= most.height) return;
    m_whole = whole;
    const Extent content = ClientSize(form);
    const Extent bar{::GetSystemMetrics(SM_CXVSCROLL), ::GetSystemMetrics(SM_CYHSCROLL)};
    // Where there is room, the window grows by a bar instead of giving up as much of its content.
    const int width = whole.width + (whole.height > most.height ? bar.width : 0);
    const int height = whole.height + (whole.width > most.width ? bar.height : 0);
    Resize(form, {std::min(width, most.width), std::min(height, most.height)});
    const ScrollBars bars = BarsFor(content, ClientSize(form), bar);
    SetStyle(form, (bars.horizontal ? WS_HSCROLL : 0U) | (bars.vertical ? WS_VSCROLL : 0U));
    Resize(form, WindowSize(form));
    const Extent page = ClientSize(form);
    if (bars.horizontal) SetRange(form, SB_HORZ, content.width, page.width);
    if (bars.vertical) SetRange(form, SB_VERT, content.height, page.height);
    ::EnumChildWindows(form, &FormScroll::WatchFocus, reinterpret_cast<LPARAM>(form));
}

void FormScroll::Undo(HWND form) noexcept
{
    if (m_whole == Extent{}) return;
    for (const int bar : {SB_HORZ, SB_VERT})
        ScrollTo(form, bar, 0);
    SetStyle(form, 0);
    Resize(form, std::exchange(m_whole, Extent{}));
}

bool FormScroll::OnMessage(HWND form, UINT message, WPARAM wParam) const noexcept
{
    if (m_whole == Extent{}) return false;
    if (message == WM_MOUSEWHEEL) {
        const bool up = static_cast<short>(HIWORD(wParam)) > 0;
        ScrollTo(form, SB_VERT, PositionFor(StateOf(form, SB_VERT), up ? SB_LINEUP : SB_LINEDOWN));
        return true;
    }
    if (message != WM_HSCROLL && message != WM_VSCROLL) return false;
    const int bar = message == WM_HSCROLL ? SB_HORZ : SB_VERT;
    ScrollTo(form, bar, PositionFor(StateOf(form, bar), LOWORD(wParam)));
    return true;
}

} // namespace corvane
