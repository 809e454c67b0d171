#include "ui/Gdi.h"

namespace host
{

namespace
{

RECT AreaOf(HWND window)
{
    RECT area{};
    ::GetClientRect(window, &area);
    return area;
}

} // namespace

PaintBuffer::PaintBuffer(HWND window)
    : m_window{window}, m_area{AreaOf(window)}, m_screen{::BeginPaint(window, &m_paint)}, m_memory{::CreateCompatibleDC(
                                                                                              m_screen)},
      m_bitmap{::CreateCompatibleBitmap(m_screen, m_area.right, m_area.bottom)}, m_before{::SelectObject(
                                                                                     m_memory.Get(), m_bitmap.Get())}
{}

PaintBuffer::~PaintBuffer()
{
    ::BitBlt(m_screen, 0, 0, m_area.right, m_area.bottom, m_memory.Get(), 0, 0, SRCCOPY);
    ::SelectObject(m_memory.Get(), m_before);
    ::EndPaint(m_window, &m_paint);
}

} // namespace host
