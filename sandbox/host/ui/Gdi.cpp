#include "ui/Gdi.h"

namespace host
{

PaintBuffer::PaintBuffer(HWND window) : m_window{window}, m_screen{::BeginPaint(window, &m_paint)}
{
    ::GetClientRect(window, &m_area);
    m_memory = ::CreateCompatibleDC(m_screen);
    m_bitmap = ::CreateCompatibleBitmap(m_screen, m_area.right, m_area.bottom);
    m_before = ::SelectObject(m_memory, m_bitmap);
}

PaintBuffer::~PaintBuffer()
{
    ::BitBlt(m_screen, 0, 0, m_area.right, m_area.bottom, m_memory, 0, 0, SRCCOPY);
    ::SelectObject(m_memory, m_before);
    ::DeleteObject(m_bitmap);
    ::DeleteDC(m_memory);
    ::EndPaint(m_window, &m_paint);
}

} // namespace host
