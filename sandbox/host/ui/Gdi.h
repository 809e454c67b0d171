#pragma once

#include <utility>

#include <windows.h>

namespace host
{

// Owns a font, brush, pen or bitmap.
template<class Handle>
class GdiObject
{
public:
    GdiObject() = default;
    explicit GdiObject(Handle handle) : m_handle{handle} {}
    GdiObject(GdiObject&& other) noexcept : m_handle{std::exchange(other.m_handle, nullptr)} {}
    GdiObject& operator=(GdiObject other) noexcept
    {
        std::swap(m_handle, other.m_handle);
        return *this;
    }
    ~GdiObject()
    {
        if (m_handle) ::DeleteObject(m_handle);
    }

    [[nodiscard]] Handle Get() const { return m_handle; }

private:
    Handle m_handle = nullptr;
};

using Font = GdiObject<HFONT>;
using Brush = GdiObject<HBRUSH>;
using Pen = GdiObject<HPEN>;

// Owns the device context of the whole screen.
class ScreenDc
{
public:
    ScreenDc() : m_dc{::GetDC(nullptr)} {}
    ScreenDc(const ScreenDc&) = delete;
    ScreenDc& operator=(const ScreenDc&) = delete;
    ~ScreenDc() { ::ReleaseDC(nullptr, m_dc); }

    [[nodiscard]] HDC Get() const { return m_dc; }

private:
    HDC m_dc;
};

// Selects an object into a device context for the length of a scope.
class Selected
{
public:
    Selected(HDC dc, HGDIOBJ object) : m_dc{dc}, m_before{::SelectObject(dc, object)} {}
    Selected(const Selected&) = delete;
    Selected& operator=(const Selected&) = delete;
    ~Selected() { ::SelectObject(m_dc, m_before); }

private:
    HDC m_dc;
    HGDIOBJ m_before;
};

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

    [[nodiscard]] HDC Dc() const { return m_memory; }

private:
    HWND m_window;
    PAINTSTRUCT m_paint{};
    RECT m_area{};
    HDC m_screen;
    HDC m_memory;
    HBITMAP m_bitmap;
    HGDIOBJ m_before;
};

} // namespace host
