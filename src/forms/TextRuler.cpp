#include "forms/TextRuler.h"

namespace corvane
{

HFONT FontOf(HWND control) noexcept { return reinterpret_cast<HFONT>(::SendMessageW(control, WM_GETFONT, 0, 0)); }

TextRuler::TextRuler(HWND control) noexcept : TextRuler{FontOf(control)} {}

TextRuler::TextRuler(HFONT font) noexcept : m_context{::CreateCompatibleDC(nullptr)}
{
    ::SelectObject(m_context.Get(), font);
}

SIZE TextRuler::Measure(const std::wstring& text, UINT format, LONG width) const noexcept
{
    RECT place{0, 0, width, 0};
    ::DrawTextW(m_context.Get(), text.c_str(), static_cast<int>(text.size()), &place, DT_CALCRECT | format);
    return {place.right, place.bottom};
}

} // namespace corvane
