#include "ui/Gdi.h"

namespace host
{

PaintBuffer::PaintBuffer(HWND window)
    : m_window{window}, m_screen{::BeginPaint(window, &m_paint)}, m_memory{::CreateCompatibleDC(m_screen)}
{
    ::GetClientRect(window, &m_area);
    m_bitmap = corvane::UniqueBitmap{::CreateCompatibleBitmap(m_screen, m_area.right, m_area.bottom)};
    m_before = ::SelectObject(m_memory.Get(), m_bitmap.Get());
}

PaintBuffer::~PaintBuffer()
{
    ::BitBlt(m_screen, 0, 0, m_area.right, m_area.bottom, m_memory.Get(), 0, 0, SRCCOPY);
    ::SelectObject(m_memory.Get(), m_before);
    ::EndPaint(m_window, &m_paint);
}

} // namespace host
