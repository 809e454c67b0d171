#include "package/Bytes.h"

#include <stdexcept>

namespace host
{

void AppendNumber(std::string& out, std::uint64_t number, std::size_t width)
{
    for (std::size_t i = 0; i < width; ++i, number >>= 8)
        out += static_cast<char>(number & 0xff);
}

std::uint64_t ReadNumber(std::string_view bytes, std::size_t at, std::size_t width)
{
    const std::string_view digits = Slice(bytes, at, width);
    std::uint64_t number = 0;
    for (std::size_t i = width; i-- > 0;)
        number = (number << 8) | static_cast<unsigned char>(digits[i]);
    return number;
}

std::string_view Slice(std::string_view bytes, std::size_t at, std::size_t size)
{
    if (at > bytes.size() || bytes.size() - at < size) throw std::runtime_error{"the file is cut short"};
    return bytes.substr(at, size);
}

} // namespace host
