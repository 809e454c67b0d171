// What the window paints with.
#pragma once

#include "platform/Owners.h"

namespace host
{

using corvane::Selected;
using corvane::UniqueBrush;
using corvane::UniqueFont;
using corvane::UniquePen;
using corvane::WindowContext;

// Owns a menu that no window has taken over.
class Menu
{
public:
    Menu() : m_menu{::CreatePopupMenu()} {}
    Menu(const Menu&) = delete;
    Menu& operator=(const Menu&) = delete;
    ~Menu() { ::DestroyMenu(m_menu); }

    [[nodiscard]] HMENU Get() const { return m_menu; }

private:
    HMENU m_menu;
};

// Paints off the screen and shows the result at once when the scope ends.
class PaintBuffer
{
public:
    explicit PaintBuffer(HWND window);
    PaintBuffer(const PaintBuffer&) = delete;
    PaintBuffer& operator=(const PaintBuffer&) = delete;
    ~PaintBuffer();

    [[nodiscard]] HDC Dc() const { return m_memory.Get(); }

private:
    HWND m_window;
    PAINTSTRUCT m_paint{};
    RECT m_area;
    HDC m_screen;
    corvane::UniqueDeviceContext m_memory;
    corvane::UniqueBitmap m_bitmap;
    HGDIOBJ m_before;
};

} // namespace host
