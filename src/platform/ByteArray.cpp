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
    if (!m_array) throw std::bad_alloc{};
}

std::span<std::byte> ByteArray::Bytes() noexcept { return BytesOf(*m_array.Get()); }

Variant ByteArray::Detach() noexcept
{
    Variant value;
    value.Put()->vt = VT_ARRAY | VT_UI1;
    const_cast<VARIANT&>(value.Get()).parray = m_array.Detach();
    return value;
}

std::span<const std::byte> BytesIn(const VARIANT& value) noexcept
{
    const bool hasBytes = value.vt == (VT_ARRAY | VT_UI1) && value.parray != nullptr;
    return hasBytes ? BytesOf(*value.parray) : std::span<std::byte>{};
}

} // namespace corvane
