// Numbers and parts in strings of bytes.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace host
{

// Little-endian numbers in a string of bytes.
void AppendNumber(std::string& out, std::uint64_t number, std::size_t width);

// Throws std::runtime_error when the number or the slice lies outside the bytes.
[[nodiscard]] std::uint64_t ReadNumber(std::string_view bytes, std::size_t at, std::size_t width);
[[nodiscard]] std::string_view Slice(std::string_view bytes, std::size_t at, std::size_t size);

} // namespace host
