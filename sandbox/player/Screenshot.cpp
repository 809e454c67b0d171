#include "player/Screen.h"

#include <ole2.h>

#include <gdiplus.h>

#include "platform/Owners.h"
#include "player/Run.h"

namespace corvane::player
{
namespace
{

constexpr CLSID kPngEncoder{0x557CF406, 0x1A04, 0x11D3, {0x9A, 0x73, 0x00, 0x00, 0xF8, 0x1E, 0xF3, 0x2E}};

RECT PlaceOf(HWND window)
{
    RECT place = {0, 0, ::GetSystemMetrics(SM_CXSCREEN), ::GetSystemMetrics(SM_CYSCREEN)};
    if (window != nullptr && !::GetWindowRect(window, &place)) Fail(L"The window is gone.");
    return place;
}

UniqueBitmap CopyOfScreen(const RECT& part)
{
    const int width = part.right - part.left;
    const int height = part.bottom - part.top;
    const WindowContext screen;
    const UniqueDeviceContext memory{::CreateCompatibleDC(screen.Get())};
    UniqueBitmap bitmap{::CreateCompatibleBitmap(screen.Get(), width, height)};
    const Selected selected{memory.Get(), bitmap.Get()};
    if (!::BitBlt(memory.Get(), 0, 0, width, height, screen.Get(), part.left, part.top, SRCCOPY))
        Fail(L"The screen cannot be read.");
    return bitmap;
}

// Stays for the next picture.
void StartGdiPlus()
{
    static ULONG_PTR token = 0;
    const Gdiplus::GdiplusStartupInput input;
    if (token == 0 && Gdiplus::GdiplusStartup(&token, &input, nullptr) != Gdiplus::Ok)
        Fail(L"The imaging component is missing.");
}

} // namespace

void SaveScreenshot(const std::wstring& path, HWND window)
{
    StartGdiPlus();
    const UniqueBitmap bitmap = CopyOfScreen(PlaceOf(window));
    Gdiplus::Bitmap picture{bitmap.Get(), nullptr};
    if (picture.Save(path.c_str(), &kPngEncoder, nullptr) != Gdiplus::Ok)
        Fail(L"The picture cannot be written to " + path);
}

} // namespace corvane::player
