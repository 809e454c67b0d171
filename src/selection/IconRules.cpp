#include "selection/IconRules.h"

#include <algorithm>
#include <optional>
#include <string_view>

namespace corvane
{
namespace
{

// Reads the blocks of a GIF picture one after the other; what is not there reads as nothing.
class GifReader
{
public:
    explicit GifReader(std::span<const std::byte> bytes) noexcept : m_rest{bytes} {}

    [[nodiscard]] bool Skip(std::size_t count) noexcept
    {
        if (m_rest.size() < count) return false;
        m_rest = m_rest.subspan(count);
        return true;
    }

    [[nodiscard]] std::optional<unsigned> Byte() noexcept
    {
        if (m_rest.empty()) return std::nullopt;
        const auto byte = std::to_integer<unsigned>(m_rest.front());
        m_rest = m_rest.subspan(1);
        return byte;
    }

    [[nodiscard]] bool Signature() noexcept
    {
        constexpr std::string_view kVersions[] = {"GIF87a", "GIF89a"};
        const auto begins = [&](std::string_view version) {
            return std::ranges::equal(m_rest.first(std::min(m_rest.size(), version.size())),
                                      std::as_bytes(std::span{version}));
        };
        return std::ranges::any_of(kVersions, begins) && Skip(kVersions[0].size());
    }

    // A width and a height.
    [[nodiscard]] bool Sides() noexcept { return Side() && Side(); }

    // The table of colors that the byte with its flags tells of.
    [[nodiscard]] bool Colors(unsigned flags) noexcept
    {
        constexpr unsigned kHasTable = 0x80;
        constexpr unsigned kSize = 0x07;
        return (flags & kHasTable) == 0 || Skip(std::size_t{3} << ((flags & kSize) + 1));
    }

    // Pieces of up to 255 bytes, behind the last of which is one of none.
    [[nodiscard]] bool Pieces() noexcept
    {
        for (;;) {
            const auto size = Byte();
            if (!size || !Skip(*size)) return false;
            if (*size == 0) return true;
        }
    }

private:
    [[nodiscard]] bool Side() noexcept
    {
        constexpr unsigned kLongest = 256;
        const auto low = Byte();
        const auto high = Byte();
        if (!low || !high) return false;
        const unsigned side = *low + *high * 256;
        return side > 0 && side <= kLongest;
    }

    std::span<const std::byte> m_rest;
};

bool Screen(GifReader& gif) noexcept
{
    if (!gif.Signature() || !gif.Sides()) return false;
    const auto flags = gif.Byte();
    return flags && gif.Skip(2) && gif.Colors(*flags); // background and aspect ratio
}

bool Image(GifReader& gif) noexcept
{
    if (!gif.Skip(4) || !gif.Sides()) return false; // its place
    const auto flags = gif.Byte();
    return flags && gif.Colors(*flags) && gif.Skip(1) && gif.Pieces(); // the width of its codes
}

} // namespace

bool IsIcon(std::span<const std::byte> bytes) noexcept
{
    constexpr unsigned kImage = ',';
    constexpr unsigned kExtension = '!';
    constexpr unsigned kEnd = ';';
    GifReader gif{bytes};
    if (!Screen(gif)) return false;
    for (bool hasImage = false;;) {
        const auto block = gif.Byte();
        if (!block || *block == kEnd) return hasImage;
        if (*block == kImage)
            hasImage = true;
        else if (*block != kExtension)
            return false;
        if (*block == kImage ? !Image(gif) : !(gif.Skip(1) && gif.Pieces())) return false;
    }
}

} // namespace corvane
