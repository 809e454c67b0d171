#pragma once

#include <string>
#include <string_view>
#include <utility>

#include <windows.h>

#include <oaidl.h>
#include <oleauto.h>

namespace host
{

// Owns a BSTR. Put() is for out-parameters; Detach() gives it to a callee or caller that frees it.
class ComText
{
public:
    ComText() = default;
    explicit ComText(std::wstring_view text);
    ComText(ComText&& other) noexcept : m_text{std::exchange(other.m_text, nullptr)} {}
    ComText& operator=(ComText other) noexcept
    {
        std::swap(m_text, other.m_text);
        return *this;
    }
    ~ComText() { ::SysFreeString(m_text); }

    [[nodiscard]] BSTR Get() const noexcept { return m_text; }
    [[nodiscard]] BSTR* Put() noexcept { return &(*this = ComText{}).m_text; }
    [[nodiscard]] BSTR Detach() noexcept { return std::exchange(m_text, nullptr); }
    [[nodiscard]] std::wstring Text() const { return {m_text ? m_text : L"", ::SysStringLen(m_text)}; }

private:
    BSTR m_text = nullptr;
};

// Owns a VARIANT. The conversions follow Automation's rules, with the neutral locale, and throw AutomationError.
class Value
{
public:
    Value() noexcept { ::VariantInit(&m_variant); }
    Value(std::wstring_view text);
    Value(const wchar_t* text) : Value{std::wstring_view{text}} {}
    Value(long number) noexcept;
    Value(double number) noexcept;
    Value(IDispatch* object) noexcept; // adds a reference; null is Nothing
    static Value OfBoolean(bool value) noexcept;
    static Value OfTriState(bool value) noexcept { return Value{value ? -1L : 0L}; }
    static Value OfDate(DATE date) noexcept;

    // A copy, with a reference followed to what it refers to.
    explicit Value(const VARIANT& source);
    Value(const Value& other) : Value{other.m_variant} {}
    Value(Value&& other) noexcept : Value{} { std::swap(m_variant, other.m_variant); }
    Value& operator=(Value other) noexcept
    {
        std::swap(m_variant, other.m_variant);
        return *this;
    }
    ~Value() { ::VariantClear(&m_variant); }

    [[nodiscard]] const VARIANT& Get() const noexcept { return m_variant; }
    [[nodiscard]] VARIANT* Put() noexcept { return &(*this = Value{}).m_variant; }
    [[nodiscard]] VARIANT Detach() noexcept;
    [[nodiscard]] VARTYPE Type() const noexcept { return m_variant.vt; }

    [[nodiscard]] bool IsMissing() const noexcept;
    [[nodiscard]] Value As(VARTYPE type) const;
    [[nodiscard]] std::wstring Text() const;
    [[nodiscard]] long Number() const;
    [[nodiscard]] double Float() const;
    [[nodiscard]] bool Boolean() const;
    [[nodiscard]] IDispatch* Object() const; // borrowed; null when it holds none

private:
    VARIANT m_variant;
};

} // namespace host
