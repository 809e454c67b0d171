#include "player/Screen.h"

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

void Encode(IWICImagingFactory& factory, IWICStream& stream, IWICBitmap& picture)
{
    ComPtr<IWICBitmapEncoder> encoder;
    ComPtr<IWICBitmapFrameEncode> frame;
    Require(factory.CreateEncoder(GUID_ContainerFormatPng, nullptr, encoder.GetAddressOf()));
    Require(encoder->Initialize(&stream, WICBitmapEncoderNoCache));
    Require(encoder->CreateNewFrame(frame.GetAddressOf(), nullptr));
    Require(frame->Initialize(nullptr));
    Require(frame->WriteSource(&picture, nullptr));
    Require(frame->Commit());
    Require(encoder->Commit());
}

} // namespace

void SaveScreenshot(const std::wstring& path, HWND window)
{
    const UniqueBitmap bitmap = CopyOfScreen(PlaceOf(window));
    ComPtr<IWICImagingFactory> factory;
    ComPtr<IWICBitmap> picture;
    ComPtr<IWICStream> stream;
    Require(::CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER, IID_IWICImagingFactory,
                               reinterpret_cast<void**>(factory.GetAddressOf())),
            L"The imaging component is missing.");
    // The screen has no transparency.
    Require(factory->CreateBitmapFromHBITMAP(bitmap.Get(), nullptr, WICBitmapIgnoreAlpha, picture.GetAddressOf()));
    Require(factory->CreateStream(stream.GetAddressOf()));
    Require(stream->InitializeFromFilename(path.c_str(), GENERIC_WRITE), L"The picture cannot be written to " + path);
    Encode(*factory.Get(), *stream.Get(), *picture.Get());
}

} // namespace corvane::player
