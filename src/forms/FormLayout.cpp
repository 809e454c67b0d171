#include "forms/FormLayout.h"

#include "platform/Owners.h"
#include "platform/Procedure.h"

namespace corvane
{
namespace
{

BOOL CALLBACK Add(HWND window, LPARAM windows) noexcept
{
    Ignoring([&] { reinterpret_cast<std::vector<HWND>*>(windows)->push_back(window); });
    return TRUE;
}

} // namespace

RECT ControlPlace(HWND control) noexcept
{
    RECT place{};
    ::GetWindowRect(control, &place);
    ::MapWindowPoints(nullptr, ::GetParent(control), reinterpret_cast<POINT*>(&place), 2);
    return place;
}

std::vector<HWND> ControlsOf(HWND form) noexcept
{
    std::vector<HWND> controls;
    ::EnumChildWindows(form, &Add, reinterpret_cast<LPARAM>(&controls));
    std::erase_if(controls, [form](HWND window) { return ::GetAncestor(window, GA_PARENT) != form; });
    return controls;
}

int HeightOf(HWND window) noexcept
{
    RECT place{};
    ::GetWindowRect(window, &place);
    return place.bottom - place.top;
}

void ShiftBelow(HWND form, int y, int delta) noexcept
{
    for (const HWND control : ControlsOf(form)) {
        const RECT place = ControlPlace(control);
        if (place.top < y) continue;
        ::SetWindowPos(control, nullptr, place.left, place.top + delta, 0, 0,
                       SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
}

void Grow(HWND window, int delta) noexcept
{
    RECT place{};
    ::GetWindowRect(window, &place);
    ::SetWindowPos(window, nullptr, 0, 0, place.right - place.left, place.bottom - place.top + delta,
                   SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

int ScreenDotsPerInch() noexcept { return ::GetDeviceCaps(WindowContext{}.Get(), LOGPIXELSY); }

int PixelsOfTwips(int twips) noexcept
{
    constexpr int kTwipsPerInch = 1440;
    return ::MulDiv(twips, ScreenDotsPerInch(), kTwipsPerInch);
}

} // namespace corvane
