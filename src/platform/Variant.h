// Owns a VARIANT and converts it the way Automation clients expect.
#pragma once

#include "platform/Owners.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace corvane
{

// Owns one VARIANT: Empty until given a value, freed with VariantClear.
class Variant
{
public:
    Variant() noexcept { ::VariantInit(&m_value); }
    Variant(std::int32_t number) noexcept; // NOLINT(google-explicit-constructor): arguments of late-bound calls
    Variant(long number) noexcept;         // NOLINT(google-explicit-constructor): idem
    Variant(bool value) noexcept;          // NOLINT(google-explicit-constructor): idem
    Variant(std::wstring_view text);       // NOLINT(google-explicit-constructor): idem
    Variant(const wchar_t* text) : Variant{std::wstring_view{text}} {}      // NOLINT(google-explicit-constructor): idem
    Variant(const std::wstring& text) : Variant{std::wstring_view{text}} {} // NOLINT(google-explicit-constructor): idem
    Variant(IDispatch* object) noexcept; // NOLINT(google-explicit-constructor): idem; adds a reference
    template<class Object>
    Variant(const ComPtr<Object>& object) noexcept : Variant{static_cast<IDispatch*>(object.Get())} // NOLINT: idem
    {}
    Variant(const Variant&) = delete;
    Variant(Variant&& other) noexcept : m_value{std::exchange(other.m_value, VARIANT{})} {}
    Variant& operator=(Variant other) noexcept
    {
        std::swap(m_value, other.m_value);
        return *this;
    }
    ~Variant() { ::VariantClear(&m_value); }

    // An argument left out of a late-bound call (DISP_E_PARAMNOTFOUND).
    [[nodiscard]] static Variant Missing() noexcept;
    [[nodiscard]] static Variant OfDate(DATE date) noexcept;
    // A second owner of what somebody else's VARIANT holds or refers to; throws Error.
    [[nodiscard]] static Variant Of(const VARIANT& value);

    [[nodiscard]] const VARIANT& Get() const noexcept { return m_value; }
    [[nodiscard]] VARIANT* Put() noexcept
    {
        *this = Variant{};
        return &m_value;
    }
    // Gives the value to a callee or caller that frees it.
    [[nodiscard]] VARIANT Detach() noexcept { return std::exchange(m_value, VARIANT{}); }

    [[nodiscard]] VARTYPE Type() const noexcept { return m_value.vt; }
    // Whether it is Empty or an argument left out.
    [[nodiscard]] bool IsMissing() const noexcept;

    // The value as another type by the rules of the neutral locale; throws Error where it has no such form.
    [[nodiscard]] Variant As(VARTYPE type) const;
    [[nodiscard]] std::int32_t Number() const { return As(VT_I4).m_value.lVal; }
    [[nodiscard]] bool Boolean() const { return As(VT_BOOL).m_value.boolVal != VARIANT_FALSE; }

    // The classic Automation text: Booleans "True" and "False", integers in decimal, Empty and Null as nothing.
    // Throws Error for a value without a text form.
    [[nodiscard]] std::wstring Text() const { return TextOf(m_value); }
    // Of() its own value.
    [[nodiscard]] Variant Copy() const { return Of(m_value); }
    // The object inside, or null when the value is not an object.
    [[nodiscard]] ComPtr<IDispatch> Object() const;

    // Text() for a VARIANT owned by somebody else.
    [[nodiscard]] static std::wstring TextOf(const VARIANT& value);

private:
    template<class Value>
    Variant(VARTYPE type, Value VARIANT::*member, std::type_identity_t<Value> value) noexcept : Variant{}
    {
        m_value.vt = type;
        m_value.*member = value;
    }

    VARIANT m_value;
};

} // namespace corvane
