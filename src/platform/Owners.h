// One owner for each kind of resource the add-in holds.
#pragma once

#include <windows.h>

#include <oleauto.h>
#include <wrl/client.h>

#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

namespace corvane
{

using Microsoft::WRL::ComPtr;

// Owns one handle, null for none, which a function of the system frees.
template<class Value, auto kFree>
class Unique
{
public:
    Unique() = default;
    explicit Unique(Value value) noexcept : m_value{value} {}
    Unique(Unique&& other) noexcept : m_value{std::exchange(other.m_value, nullptr)} {}
    Unique& operator=(Unique other) noexcept
    {
        std::swap(m_value, other.m_value);
        return *this;
    }
    ~Unique()
    {
        if (m_value != nullptr) kFree(m_value);
    }

    [[nodiscard]] Value Get() const noexcept { return m_value; }
    [[nodiscard]] Value* Put() noexcept
    {
        *this = Unique{};
        return &m_value;
    }
    [[nodiscard]] Value Detach() noexcept { return std::exchange(m_value, nullptr); }
    explicit operator bool() const noexcept { return m_value != nullptr; }

private:
    Value m_value = nullptr;
};

using UniqueFile = Unique<HANDLE, ::CloseHandle>;
using UniqueRegistryKey = Unique<HKEY, ::RegCloseKey>;
using UniqueFont = Unique<HFONT, ::DeleteObject>;
using UniqueBrush = Unique<HBRUSH, ::DeleteObject>;
using UniquePen = Unique<HPEN, ::DeleteObject>;
using UniqueBitmap = Unique<HBITMAP, ::DeleteObject>;
using UniqueDeviceContext = Unique<HDC, ::DeleteDC>;

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

// The text of a BSTR that somebody else owns; null reads as empty.
[[nodiscard]] std::wstring_view ViewOf(BSTR text) noexcept;

// Owns a BSTR. Put() is for out-parameters; Detach() gives the text to a callee that frees it.
class Bstr : public Unique<BSTR, ::SysFreeString>
{
public:
    Bstr() = default;
    explicit Bstr(std::wstring_view text); // throws std::bad_alloc

    [[nodiscard]] std::wstring Text() const { return std::wstring{ViewOf(Get())}; }
};

// Hands a text, to be freed by the caller, or a plain value out of a COM method; the method's result.
[[nodiscard]] HRESULT HandOut(std::wstring_view text, BSTR* into) noexcept;
template<class Value>
[[nodiscard]] HRESULT HandOutValue(std::type_identity_t<Value> value, Value* into) noexcept
{
    if (into == nullptr) return E_POINTER;
    *into = value;
    return S_OK;
}

// The text of an id, in braces.
[[nodiscard]] std::wstring GuidText(REFGUID id);

} // namespace corvane
