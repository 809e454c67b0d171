// Fonts of controls, and sizes of texts on the screen.
#pragma once

#include "platform/Owners.h"

#include <string>

namespace corvane
{

// A control's font, which stays its own.
[[nodiscard]] HFONT FontOf(HWND control) noexcept;

// Measures texts in a font: a control's own, or one that outlives the ruler.
class TextRuler
{
public:
    explicit TextRuler(HWND control) noexcept;
    explicit TextRuler(HFONT font) noexcept;

    // The size in pixels, drawn with these DrawText formats; lines break at width.
    [[nodiscard]] SIZE Measure(const std::wstring& text, UINT format, LONG width) const noexcept;

private:
    UniqueDeviceContext m_context;
};

} // namespace corvane
