// Forms larger than the screen: the window is cut to a size that fits and scrolls.
#pragma once

#include "forms/FormPlacement.h"

#include <windows.h>

namespace corvane
{

// Scrolls the controls of one form while its window is smaller than they need. The keyboard takes the view along.
class FormScroll
{
public:
    FormScroll() = default;
    FormScroll(const FormScroll&) = delete;
    FormScroll& operator=(const FormScroll&) = delete;
    ~FormScroll() = default;

    // Makes the window no larger than most, in pixels, with the scroll bars that it then needs.
    void Cut(HWND form, const Extent& most) noexcept;

    // Scrolls back to the beginning and gives the window the size that it was cut from.
    void Undo(HWND form) noexcept;

    // Answers a scroll bar or the mouse wheel; false for any other message, or while nothing scrolls.
    bool OnMessage(HWND form, UINT message, WPARAM wParam) const noexcept;

private:
    static BOOL CALLBACK WatchFocus(HWND control, LPARAM form) noexcept;
    static LRESULT CALLBACK FocusProcedure(HWND control, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                           DWORD_PTR form) noexcept;

    Extent m_whole; // of the window before it was cut; nothing while it is not
};

} // namespace corvane
