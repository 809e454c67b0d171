// Numbers and parts in strings of bytes.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>

namespace host
{

// The part of these bytes; throws std::runtime_error when it lies outside of them.
[[nodiscard]] inline std::string_view Slice(std::string_view bytes, std::size_t at, std::size_t size)
{
    if (at > bytes.size() || bytes.size() - at < size) throw std::runtime_error{"the file is cut short"};
    return bytes.substr(at, size);
}

// Little-endian numbers in a string of bytes; reading outside of them throws as Slice does.
inline void AppendNumber(std::string& out, std::uint64_t number, std::size_t width)
{
    for (std::size_t i = 0; i < width; ++i, number >>= 8)
        out += static_cast<char>(number & 0xff);
}
[[nodiscard]] inline std::string Numbers(std::initializer_list<std::pair<std::uint64_t, std::size_t>> numbersAndWidths)
{
    std::string out;
    for (const auto& [number, width] : numbersAndWidths)
        AppendNumber(out, number, width);
    return out;
}
template<class Number = std::uint64_t>
[[nodiscard]] Number ReadNumber(std::string_view bytes, std::size_t at, std::size_t width)
{
    std::uint64_t number = 0;
    for (const std::string_view digits = Slice(bytes, at, width); width-- > 0;)
        number = (number << 8) | static_cast<unsigned char>(digits[width]);
    return static_cast<Number>(number);
}

} // namespace host
