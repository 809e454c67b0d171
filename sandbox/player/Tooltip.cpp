#include "player/Screen.h"

#include <commctrl.h>

namespace corvane::player
{
namespace
{

HWND TooltipOf(HWND form)
{
    HWND tooltip = nullptr;
    while ((tooltip = ::FindWindowExW(nullptr, tooltip, TOOLTIPS_CLASSW, nullptr)) != nullptr)
        if (::GetWindow(tooltip, GW_OWNER) == form) return tooltip;
    return nullptr;
}

std::wstring AskForText(HWND form, HWND control, UINT message, WPARAM room)
{
    static TTTOOLINFOW tool; // lives on: see Ask
    tool = {};
    tool.cbSize = TTTOOLINFOW_V2_SIZE;
    tool.hwnd = form;
    tool.uId = reinterpret_cast<UINT_PTR>(control);
    tool.lpszText = AnswerBuffer();
    *tool.lpszText = L'\0';
    static_cast<void>(Ask(TooltipOf(form), message, room, reinterpret_cast<LPARAM>(&tool)));
    return AnswerBuffer();
}

} // namespace

std::wstring TipOf(HWND form, HWND control) { return AskForText(form, control, TTM_GETTEXTW, kAnswerLength); }

std::wstring ShownTip(HWND form)
{
    if (!::IsWindowVisible(TooltipOf(form))) return {};
    return AskForText(form, nullptr, TTM_GETCURRENTTOOLW, 0);
}

void PointAt(HWND form, HWND control)
{
    RECT place{};
    ::GetWindowRect(control, &place);
    if (control == form) {
        POINT client{};
        ::ClientToScreen(form, &client);
        place.bottom = client.y;
    }
    ::SetCursorPos((place.left + place.right) / 2, (place.top + place.bottom) / 2);
}

} // namespace corvane::player
