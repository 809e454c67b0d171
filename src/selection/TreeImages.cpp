#include "selection/TreeImages.h"

#include "forms/FormLayout.h"
#include "platform/ComObject.h"
#include "platform/HResult.h"
#include "platform/Variant.h"
#include "resources/resource.h"

#include <olectl.h>
#include <shlwapi.h>

namespace corvane
{
namespace
{

constexpr int kPictureSize = 17; // pixels at 96 dpi

// In the order of TreePicture.
constexpr int kOwnPictures[] = {IDR_IMAGE_DELIVERABLE, IDR_IMAGE_ACTIVITY, IDR_IMAGE_RELATED, IDR_IMAGE_GATEDOC,
                                IDR_IMAGE_PLAIN};
constexpr int kOwnCount = static_cast<int>(std::size(kOwnPictures));

int ScaledSize() noexcept { return ::MulDiv(kPictureSize, ScreenDotsPerInch(), USER_DEFAULT_SCREEN_DPI); }

// A square bitmap of the screen's kind.
UniqueBitmap ScreenBitmap(int size) noexcept
{
    return UniqueBitmap{::CreateCompatibleBitmap(WindowContext{}.Get(), size, size)};
}

} // namespace

TreeImages::TreeImages()
    : m_size{ScaledSize()}, m_list{::ImageList_Create(m_size, m_size, ILC_COLOR32, kOwnCount, kOwnCount)}
{
    for (const int id : kOwnPictures)
        AddResource(id);
}

void TreeImages::AddResource(int id)
{
    constexpr const wchar_t* kSource = L"TreeImages.AddResource";
    const HINSTANCE module = Library::Module();
    const HRSRC found = ::FindResourceW(module, MAKEINTRESOURCEW(id), RT_RCDATA);
    CheckWin32(found != nullptr, kSource);
    const auto* bytes = static_cast<const BYTE*>(::LockResource(::LoadResource(module, found)));
    const DWORD size = ::SizeofResource(module, found);
    ComPtr<IStream> stream; // not Attach: MinGW's adds a reference
    *stream.GetAddressOf() = ::SHCreateMemStream(bytes, size);
    ComPtr<IPicture> picture;
    Check(::OleLoadPicture(stream.Get(), static_cast<LONG>(size), FALSE, IID_IPicture, &picture), kSource);
    Add(*picture.Get());
}

void TreeImages::AddFile(const std::wstring& key, const std::wstring& path)
{
    ComPtr<IPicture> picture;
    Check(::OleLoadPicturePath(const_cast<LPOLESTR>(path.c_str()), nullptr, 0, 0, IID_IPicture, &picture),
          L"TreeImages.AddFile");
    m_keys[key] = Add(*picture.Get());
}

int TreeImages::Add(IPicture& picture)
{
    constexpr const wchar_t* kSource = L"TreeImages.Add";
    OLE_XSIZE_HIMETRIC width = 0;
    OLE_YSIZE_HIMETRIC height = 0;
    Check(picture.get_Width(&width), kSource);
    Check(picture.get_Height(&height), kSource);
    const UniqueBitmap bitmap = ScreenBitmap(m_size);
    {
        const UniqueDeviceContext context{::CreateCompatibleDC(nullptr)};
        const Selected selected{context.Get(), bitmap.Get()};
        const RECT all{0, 0, m_size, m_size};
        ::FillRect(context.Get(), &all, ::GetSysColorBrush(COLOR_WINDOW));
        // The picture's own coordinates run upwards.
        Check(picture.Render(context.Get(), 0, 0, m_size, m_size, 0, height, width, -height, nullptr), kSource);
    }
    return ::ImageList_Add(m_list.Get(), bitmap.Get(), nullptr);
}

int TreeImages::IndexOf(const std::wstring& key) const
{
    const auto entry = m_keys.find(key);
    return entry == m_keys.end() ? IndexOf(TreePicture::Plain) : entry->second;
}

} // namespace corvane
