#include "forms/FormCaption.h"

#include "forms/TextRuler.h"
#include "platform/Owners.h"

namespace corvane
{

bool CaptionFits(HWND form, const std::wstring& text)
{
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof metrics;
    ::SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
    const UniqueFont font{::CreateFontIndirectW(&metrics.lfCaptionFont)};
    const TextRuler ruler{font.Get()};
    RECT client{};
    ::GetClientRect(form, &client);
    const LONG room = client.right - ::GetSystemMetrics(SM_CXSIZE); // the button that closes it
    const LONG margin = ruler.Measure(L"0", DT_SINGLELINE, 0).cx;
    return ruler.Measure(text, DT_SINGLELINE | DT_NOPREFIX, 0).cx + margin <= room;
}

RECT CaptionPlace(HWND form) noexcept
{
    RECT place{};
    ::GetWindowRect(form, &place);
    ::MapWindowPoints(nullptr, form, reinterpret_cast<POINT*>(&place), 2);
    place.bottom = 0;
    return place;
}

} // namespace corvane
