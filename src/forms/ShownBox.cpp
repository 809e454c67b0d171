#include "forms/ShownBox.h"

#include "forms/FormWindow.h"
#include "forms/TextRuler.h"
#include "platform/Owners.h"
#include "platform/Procedure.h"

#include <commctrl.h>

#include <algorithm>

namespace corvane
{
namespace
{

constexpr UINT_PTR kEllipsisSubclass = 3;

// Over what the box has drawn, in the colours that its form gives it.
void DrawShortened(HWND box)
{
    std::wstring text = WindowText(box);
    RECT room = TextRoomOf(box);
    if (TextRuler{box}.Measure(text, DT_SINGLELINE | DT_NOPREFIX, 0).cx <= room.right - room.left) return;
    const WindowContext window{box};
    const HDC context = window.Get();
    const auto brush = reinterpret_cast<HBRUSH>(::SendMessageW(
        ::GetParent(box), WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(context), reinterpret_cast<LPARAM>(box)));
    ::FillRect(context, &room, brush);
    const Selected font{context, FontOf(box)};
    ::DrawTextW(context, text.c_str(), static_cast<int>(text.size()), &room,
                DT_SINGLELINE | DT_NOPREFIX | DT_END_ELLIPSIS);
}

LRESULT CALLBACK EllipsisProcedure(HWND box, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR) noexcept
{
    const LRESULT result = ::DefSubclassProc(box, message, wParam, lParam);
    if (message == WM_PAINT && ::GetFocus() != box) Ignoring([box] { DrawShortened(box); });
    if (message == WM_SETFOCUS || message == WM_KILLFOCUS) ::InvalidateRect(box, nullptr, TRUE);
    if (message == WM_NCDESTROY) ::RemoveWindowSubclass(box, &EllipsisProcedure, kEllipsisSubclass);
    return result;
}

} // namespace

RECT TextRoomOf(HWND box) noexcept
{
    RECT room{};
    ::SendMessageW(box, EM_GETRECT, 0, reinterpret_cast<LPARAM>(&room));
    // Not every edition of the control counts its margins there: where a text starts that is not scrolled tells.
    const auto start = static_cast<short>(LOWORD(::SendMessageW(box, EM_POSFROMCHAR, 0, 0)));
    const LONG margin = std::max(0L, start - room.left);
    return {room.left + margin, room.top, room.right - margin, room.bottom};
}

void EndInEllipsis(HWND box) noexcept { ::SetWindowSubclass(box, &EllipsisProcedure, kEllipsisSubclass, 0); }

} // namespace corvane
