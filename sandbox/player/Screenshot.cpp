#include "player/Screenshot.h"

#include <vector>

#include <initguid.h>
#include <windows.h>

#include <wincodec.h>
#include <wrl/client.h>

#include "automation/Errors.h"

namespace host
{
namespace
{

using Microsoft::WRL::ComPtr;

struct Pixels
{
    UINT width = 0;
    UINT height = 0;
    std::vector<BYTE> bytes; // 32 bits a pixel, the top line first
};

RECT PlaceOf(HWND window)
{
    RECT place = {0, 0, ::GetSystemMetrics(SM_CXSCREEN), ::GetSystemMetrics(SM_CYSCREEN)};
    if (window && !::GetWindowRect(window, &place)) throw Error{E_FAIL, {}, L"The window is gone."};
    return place;
}

// The screen's device context with a bitmap of the size of a part, released together.
class ScreenCopy
{
public:
    explicit ScreenCopy(const RECT& part)
        : m_screen{::GetDC(nullptr)}, m_memory{::CreateCompatibleDC(m_screen)}, m_left{part.left}, m_top{part.top},
          m_width{part.right - part.left}, m_height{part.bottom - part.top}, m_bitmap{::CreateCompatibleBitmap(
                                                                                 m_screen, m_width, m_height)}
    {}
    ScreenCopy(const ScreenCopy&) = delete;
    ScreenCopy& operator=(const ScreenCopy&) = delete;
    ~ScreenCopy()
    {
        ::DeleteObject(m_bitmap);
        ::DeleteDC(m_memory);
        ::ReleaseDC(nullptr, m_screen);
    }

    [[nodiscard]] Pixels Take()
    {
        const HGDIOBJ before = ::SelectObject(m_memory, m_bitmap);
        const BOOL copied = ::BitBlt(m_memory, 0, 0, m_width, m_height, m_screen, m_left, m_top, SRCCOPY);
        ::SelectObject(m_memory, before);
        BITMAPINFO info{};
        info.bmiHeader.biSize = sizeof info.bmiHeader;
        info.bmiHeader.biWidth = m_width;
        info.bmiHeader.biHeight = -m_height;
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        Pixels pixels{static_cast<UINT>(m_width), static_cast<UINT>(m_height), {}};
        pixels.bytes.resize(std::size_t{4} * pixels.width * pixels.height);
        const int lines = ::GetDIBits(m_memory, m_bitmap, 0, pixels.height, pixels.bytes.data(), &info, DIB_RGB_COLORS);
        if (!copied || lines != m_height) throw Error{E_FAIL, {}, L"The screen cannot be read."};
        return pixels;
    }

private:
    HDC m_screen;
    HDC m_memory;
    int m_left;
    int m_top;
    int m_width;
    int m_height;
    HBITMAP m_bitmap;
};

void Encode(IWICImagingFactory& factory, IWICStream& stream, Pixels& pixels)
{
    constexpr wchar_t kFailed[] = L"The picture cannot be written.";
    ComPtr<IWICBitmapEncoder> encoder;
    ComPtr<IWICBitmapFrameEncode> frame;
    ThrowIfFailed(factory.CreateEncoder(GUID_ContainerFormatPng, nullptr, encoder.GetAddressOf()), kFailed);
    ThrowIfFailed(encoder->Initialize(&stream, WICBitmapEncoderNoCache), kFailed);
    ThrowIfFailed(encoder->CreateNewFrame(frame.GetAddressOf(), nullptr), kFailed);
    ThrowIfFailed(frame->Initialize(nullptr), kFailed);
    ThrowIfFailed(frame->SetSize(pixels.width, pixels.height), kFailed);
    WICPixelFormatGUID format = GUID_WICPixelFormat32bppBGRA;
    ThrowIfFailed(frame->SetPixelFormat(&format), kFailed);
    ThrowIfFailed(frame->WritePixels(pixels.height, 4 * pixels.width, static_cast<UINT>(pixels.bytes.size()),
                                     pixels.bytes.data()),
                  kFailed);
    ThrowIfFailed(frame->Commit(), kFailed);
    ThrowIfFailed(encoder->Commit(), kFailed);
}

} // namespace

void SaveScreenshot(const std::wstring& path, HWND window)
{
    Pixels pixels = ScreenCopy{PlaceOf(window)}.Take();
    for (std::size_t i = 3; i < pixels.bytes.size(); i += 4)
        pixels.bytes[i] = 0xff; // the screen has no transparency
    ComPtr<IWICImagingFactory> factory;
    ComPtr<IWICStream> stream;
    ThrowIfFailed(::CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER, IID_IWICImagingFactory,
                                     reinterpret_cast<void**>(factory.GetAddressOf())),
                  L"The imaging component is missing.");
    ThrowIfFailed(factory->CreateStream(stream.GetAddressOf()), L"The picture cannot be written.");
    ThrowIfFailed(stream->InitializeFromFilename(path.c_str(), GENERIC_WRITE),
                  (L"The picture cannot be written to " + path).c_str());
    Encode(*factory.Get(), *stream.Get(), pixels);
}

} // namespace host
