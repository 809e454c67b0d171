#include "player/Screenshot.h"

#include <vector>

#include <initguid.h>
#include <windows.h>

#include <wincodec.h>

#include "platform/Owners.h"
#include "player/Run.h"

namespace corvane::player
{
namespace
{

constexpr wchar_t kNotWritten[] = L"The picture cannot be written.";

struct Pixels
{
    UINT width = 0;
    UINT height = 0;
    std::vector<BYTE> bytes; // 32 bits a pixel, the top line first
};

void Require(HRESULT result, const std::wstring& otherwise = kNotWritten)
{
    if (FAILED(result)) Fail(otherwise);
}

RECT PlaceOf(HWND window)
{
    RECT place = {0, 0, ::GetSystemMetrics(SM_CXSCREEN), ::GetSystemMetrics(SM_CYSCREEN)};
    if (window != nullptr && !::GetWindowRect(window, &place)) Fail(L"The window is gone.");
    return place;
}

Pixels PixelsOfScreen(const RECT& part)
{
    const int width = part.right - part.left;
    const int height = part.bottom - part.top;
    const WindowContext screen;
    const UniqueDeviceContext memory{::CreateCompatibleDC(screen.Get())};
    const UniqueBitmap bitmap{::CreateCompatibleBitmap(screen.Get(), width, height)};
    BOOL copied = FALSE;
    {
        const Selected selected{memory.Get(), bitmap.Get()};
        copied = ::BitBlt(memory.Get(), 0, 0, width, height, screen.Get(), part.left, part.top, SRCCOPY);
    }
    BITMAPINFO info{};
    info.bmiHeader = {sizeof info.bmiHeader, width, -height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    Pixels pixels{static_cast<UINT>(width), static_cast<UINT>(height), {}};
    pixels.bytes.resize(std::size_t{4} * pixels.width * pixels.height);
    const int lines =
        ::GetDIBits(memory.Get(), bitmap.Get(), 0, pixels.height, pixels.bytes.data(), &info, DIB_RGB_COLORS);
    if (!copied || lines != height) Fail(L"The screen cannot be read.");
    for (std::size_t i = 3; i < pixels.bytes.size(); i += 4)
        pixels.bytes[i] = 0xff; // the screen has no transparency
    return pixels;
}

void Encode(IWICImagingFactory& factory, IWICStream& stream, Pixels& pixels)
{
    ComPtr<IWICBitmapEncoder> encoder;
    ComPtr<IWICBitmapFrameEncode> frame;
    Require(factory.CreateEncoder(GUID_ContainerFormatPng, nullptr, encoder.GetAddressOf()));
    Require(encoder->Initialize(&stream, WICBitmapEncoderNoCache));
    Require(encoder->CreateNewFrame(frame.GetAddressOf(), nullptr));
    Require(frame->Initialize(nullptr));
    Require(frame->SetSize(pixels.width, pixels.height));
    WICPixelFormatGUID format = GUID_WICPixelFormat32bppBGRA;
    Require(frame->SetPixelFormat(&format));
    const auto size = static_cast<UINT>(pixels.bytes.size());
    Require(frame->WritePixels(pixels.height, 4 * pixels.width, size, pixels.bytes.data()));
    Require(frame->Commit());
    Require(encoder->Commit());
}

} // namespace

void SaveScreenshot(const std::wstring& path, HWND window)
{
    Pixels pixels = PixelsOfScreen(PlaceOf(window));
    ComPtr<IWICImagingFactory> factory;
    ComPtr<IWICStream> stream;
    Require(::CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER, IID_IWICImagingFactory,
                               reinterpret_cast<void**>(factory.GetAddressOf())),
            L"The imaging component is missing.");
    Require(factory->CreateStream(stream.GetAddressOf()));
    Require(stream->InitializeFromFilename(path.c_str(), GENERIC_WRITE), L"The picture cannot be written to " + path);
    Encode(*factory.Get(), *stream.Get(), pixels);
}

} // namespace corvane::player
