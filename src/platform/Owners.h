// One owner for each kind of resource the add-in holds.
#pragma once

#include <windows.h>

#include <oleauto.h>
#include <wrl/client.h>

#include <string>
#include <string_view>
#include <utility>

namespace corvane
{

using Microsoft::WRL::ComPtr;

// Owns one handle of the kind that Traits describes: its type, its empty value and how it is freed.
template<class Traits>
class Unique
{
public:
    using Value = typename Traits::Value;

    Unique() = default;
    explicit Unique(Value value) noexcept : m_value{value} {}
    Unique(Unique&& other) noexcept : m_value{std::exchange(other.m_value, Traits::kEmpty)} {}
    Unique& operator=(Unique other) noexcept
    {
        std::swap(m_value, other.m_value);
        return *this;
    }
    ~Unique()
    {
        if (m_value != Traits::kEmpty) Traits::Free(m_value);
    }

    [[nodiscard]] Value Get() const noexcept { return m_value; }
    [[nodiscard]] Value* Put() noexcept
    {
        *this = Unique{};
        return &m_value;
    }
    [[nodiscard]] Value Detach() noexcept { return std::exchange(m_value, Traits::kEmpty); }
    explicit operator bool() const noexcept { return m_value != Traits::kEmpty; }

private:
    Value m_value = Traits::kEmpty;
};

struct FileTraits
{
    using Value = HANDLE;
    static constexpr Value kEmpty = nullptr;
    static void Free(Value file) noexcept { ::CloseHandle(file); }
};
struct RegistryKeyTraits
{
    using Value = HKEY;
    static constexpr Value kEmpty = nullptr;
    static void Free(Value key) noexcept { ::RegCloseKey(key); }
};
template<class Kind>
struct GdiTraits
{
    using Value = Kind;
    static constexpr Value kEmpty = nullptr;
    static void Free(Value object) noexcept { ::DeleteObject(object); }
};
struct DeviceContextTraits
{
    using Value = HDC;
    static constexpr Value kEmpty = nullptr;
    static void Free(Value context) noexcept { ::DeleteDC(context); }
};

using UniqueFile = Unique<FileTraits>;
using UniqueRegistryKey = Unique<RegistryKeyTraits>;
using UniqueFont = Unique<GdiTraits<HFONT>>;
using UniqueBrush = Unique<GdiTraits<HBRUSH>>;
using UniquePen = Unique<GdiTraits<HPEN>>;
using UniqueBitmap = Unique<GdiTraits<HBITMAP>>;
using UniqueDeviceContext = Unique<DeviceContextTraits>;

// The device context of a window's client area, without one of the screen, for as long as it lives.
class WindowContext
{
public:
    explicit WindowContext(HWND window = nullptr) noexcept : m_window{window}, m_context{::GetDC(window)} {}
    WindowContext(const WindowContext&) = delete;
    WindowContext& operator=(const WindowContext&) = delete;
    ~WindowContext() { ::ReleaseDC(m_window, m_context); }

    [[nodiscard]] HDC Get() const noexcept { return m_context; }

private:
    HWND m_window;
    HDC m_context;
};

// An object that is selected into a device context for as long as this lives.
class Selected
{
public:
    Selected(HDC context, HGDIOBJ object) noexcept : m_context{context}, m_before{::SelectObject(context, object)} {}
    Selected(const Selected&) = delete;
    Selected& operator=(const Selected&) = delete;
    ~Selected() { ::SelectObject(m_context, m_before); }

private:
    HDC m_context;
    HGDIOBJ m_before;
};

// Owns a BSTR. Put() is for out-parameters; Detach() gives the text to a callee that frees it.
class Bstr
{
public:
    Bstr() = default;
    explicit Bstr(std::wstring_view text); // throws std::bad_alloc
    Bstr(Bstr&& other) noexcept : m_text{std::exchange(other.m_text, nullptr)} {}
    Bstr& operator=(Bstr other) noexcept
    {
        std::swap(m_text, other.m_text);
        return *this;
    }
    ~Bstr() { ::SysFreeString(m_text); }

    [[nodiscard]] BSTR Get() const noexcept { return m_text; }
    [[nodiscard]] BSTR* Put() noexcept
    {
        *this = Bstr{};
        return &m_text;
    }
    [[nodiscard]] BSTR Detach() noexcept { return std::exchange(m_text, nullptr); }
    [[nodiscard]] std::wstring Text() const
    {
        return m_text == nullptr ? L"" : std::wstring(m_text, ::SysStringLen(m_text));
    }

private:
    BSTR m_text = nullptr;
};

// The text of an id, in braces.
[[nodiscard]] std::wstring GuidText(REFGUID id);

// The text of a BSTR that somebody else owns; null reads as empty.
[[nodiscard]] std::wstring_view ViewOf(BSTR text) noexcept;

} // namespace corvane
