// A block of bytes in the form that Automation passes on: one SAFEARRAY of unsigned bytes.
#pragma once

#include "platform/Owners.h"
#include "platform/Variant.h"

#include <cstddef>
#include <span>

namespace corvane
{

// Owns the bytes until they are handed to a Variant.
class ByteArray
{
public:
    // size bytes of zero; throws std::bad_alloc when there is no memory for them.
    explicit ByteArray(std::size_t size);

    [[nodiscard]] std::span<std::byte> Bytes() noexcept;

    // Gives the array away, without a copy, as a value that an Automation call takes.
    [[nodiscard]] Variant Detach() noexcept;

private:
    Unique<SAFEARRAY*, ::SafeArrayDestroy> m_array;
};

// The bytes inside a value, which owns them; empty where it holds no array of bytes.
[[nodiscard]] std::span<const std::byte> BytesIn(const VARIANT& value) noexcept;

} // namespace corvane
