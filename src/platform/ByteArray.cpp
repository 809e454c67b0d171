#include "platform/ByteArray.h"

#include <new>

namespace corvane
{
namespace
{

// A vector of bytes has one dimension; its data stay in place while it lives.
std::span<std::byte> BytesOf(const SAFEARRAY& array) noexcept
{
    return {static_cast<std::byte*>(array.pvData), array.rgsabound[0].cElements};
}

} // namespace

ByteArray::ByteArray(std::size_t size) : m_array{::SafeArrayCreateVector(VT_UI1, 0, static_cast<ULONG>(size))}
{
    if (m_array == nullptr) throw std::bad_alloc{};
}

ByteArray::ByteArray(ByteArray&& other) noexcept : m_array{std::exchange(other.m_array, nullptr)} {}

ByteArray& ByteArray::operator=(ByteArray other) noexcept
{
    std::swap(m_array, other.m_array);
    return *this;
}

ByteArray::~ByteArray()
{
    if (m_array != nullptr) ::SafeArrayDestroy(m_array);
}

std::span<std::byte> ByteArray::Bytes() noexcept { return BytesOf(*m_array); }

Variant ByteArray::Detach() noexcept
{
    Variant value;
    value.Put()->vt = VT_ARRAY | VT_UI1;
    const_cast<VARIANT&>(value.Get()).parray = std::exchange(m_array, nullptr);
    return value;
}

std::span<const std::byte> BytesIn(const VARIANT& value) noexcept
{
    const bool hasBytes = value.vt == (VT_ARRAY | VT_UI1) && value.parray != nullptr;
    return hasBytes ? BytesOf(*value.parray) : std::span<std::byte>{};
}

} // namespace corvane
