// Keeps a control from painting itself while it is filled.
#pragma once

#include <windows.h>

namespace corvane
{

// The control, which stays its form's, paints nothing for as long as the object lives, and all of itself afterwards.
class PaintingOff
{
public:
    explicit PaintingOff(HWND control) noexcept : m_control{control} { Set(FALSE); }
    PaintingOff(const PaintingOff&) = delete;
    PaintingOff& operator=(const PaintingOff&) = delete;
    ~PaintingOff() { Set(TRUE); }

private:
    void Set(BOOL paints) const noexcept { ::SendMessageW(m_control, WM_SETREDRAW, static_cast<WPARAM>(paints), 0); }

    HWND m_control;
};

} // namespace corvane
