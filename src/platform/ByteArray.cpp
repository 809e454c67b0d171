#include "platform/ByteArray.h"

#include <new>

namespace corvane
{

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

std::span<std::byte> ByteArray::Bytes() noexcept
{
    // A vector made by SafeArrayCreateVector has one dimension; its data stay in place while it lives.
    return {static_cast<std::byte*>(m_array->pvData), m_array->rgsabound[0].cElements};
}

Variant ByteArray::Detach() noexcept
{
    Variant value;
    value.Put()->vt = VT_ARRAY | VT_UI1;
    const_cast<VARIANT&>(value.Get()).parray = std::exchange(m_array, nullptr);
    return value;
}

} // namespace corvane
