#include "diagnose/ProgramBits.h"

#include <cstdint>

namespace diagnose
{
namespace
{

// The layout of the format: a header that begins with "MZ" says where the signature is, which the machine follows.
constexpr std::uint32_t kDosSignature = 0x5A4D;
constexpr std::size_t kSignaturePlace = 0x3C;
constexpr std::uint32_t kSignature = 0x4550; // "PE" and two zeros
constexpr std::uint32_t kMachine64 = 0x8664;
constexpr std::uint32_t kMachine32 = 0x014C;

// The number of so many bytes at a place, the lowest first; 0 where it is not wholly there.
std::uint32_t NumberAt(std::span<const std::byte> bytes, std::size_t at, std::size_t size) noexcept
{
    if (at > bytes.size() || bytes.size() - at < size) return 0;
    std::uint32_t number = 0;
    for (std::size_t index = size; index-- > 0;)
        number = number << 8U | std::to_integer<std::uint32_t>(bytes[at + index]);
    return number;
}

} // namespace

int ProgramBits(std::span<const std::byte> head) noexcept
{
    if (NumberAt(head, 0, 2) != kDosSignature) return 0;
    const std::size_t signature = NumberAt(head, kSignaturePlace, 4);
    if (NumberAt(head, signature, 4) != kSignature) return 0;
    const std::uint32_t machine = NumberAt(head, signature + 4, 2);
    return machine == kMachine64 ? 64 : machine == kMachine32 ? 32 : 0;
}

} // namespace diagnose
