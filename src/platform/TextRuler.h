// Sizes of texts on the screen.
#pragma once

#include "platform/Owners.h"

#include <string>

namespace corvane
{

// Measures texts in a control's own font.
class TextRuler
{
public:
    explicit TextRuler(HWND control) noexcept;

    // The size in pixels, drawn with these DrawText formats; lines break at width.
    [[nodiscard]] SIZE Measure(const std::wstring& text, UINT format, LONG width) const noexcept;

private:
    UniqueDeviceContext m_context;
};

} // namespace corvane
