#include "judge/Zip.h"

#include "judge/Failure.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <zlib.h>

namespace verify
{
namespace
{

constexpr std::string_view kEndMark = "PK\5\6";
constexpr std::string_view kEntryMark = "PK\1\2";
constexpr std::string_view kPartMark = "PK\3\4";
constexpr std::size_t kEndSize = 22;
constexpr std::size_t kEntrySize = 46;
constexpr std::size_t kPartSize = 30;
constexpr std::uint32_t kStored = 0;
constexpr std::uint32_t kDeflated = 8;

// A number of so many bytes, the lowest first. Throws Failure where the archive ends before.
std::uint32_t NumberAt(std::string_view bytes, std::size_t at, std::size_t size)
{
    Require(at + size <= bytes.size(), "it ends too early");
    std::uint32_t number = 0;
    for (std::size_t n = size; n-- > 0;)
        number = (number << 8U) | static_cast<unsigned char>(bytes[at + n]);
    return number;
}

std::string_view Slice(std::string_view bytes, std::size_t at, std::size_t size)
{
    Require(at <= bytes.size() && size <= bytes.size() - at, "it ends too early");
    return bytes.substr(at, size);
}

// An entry of the central directory.
struct Entry
{
    std::string name;
    std::uint32_t method;
    std::uint32_t checksum;
    std::uint32_t packed;
    std::uint32_t size;
    std::uint32_t place;
};

Entry ReadEntry(std::string_view bytes, std::size_t at)
{
    Require(Slice(bytes, at, 4) == kEntryMark, "its directory is broken");
    return {.name = std::string{Slice(bytes, at + kEntrySize, NumberAt(bytes, at + 28, 2))},
            .method = NumberAt(bytes, at + 10, 2),
            .checksum = NumberAt(bytes, at + 16, 4),
            .packed = NumberAt(bytes, at + 20, 4),
            .size = NumberAt(bytes, at + 24, 4),
            .place = NumberAt(bytes, at + 42, 4)};
}

// Where the next entry begins.
std::size_t EndOfEntry(std::string_view bytes, std::size_t at)
{
    return at + kEntrySize + NumberAt(bytes, at + 28, 2) + NumberAt(bytes, at + 30, 2) + NumberAt(bytes, at + 32, 2);
}

std::optional<std::string> Inflated(std::string_view packed, std::size_t size)
{
    std::string bytes(size + 1, '\0'); // one more shows what is too long
    z_stream stream{};
    if (inflateInit2(&stream, -MAX_WBITS) != Z_OK) return std::nullopt;
    stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(packed.data()));
    stream.avail_in = static_cast<uInt>(packed.size());
    stream.next_out = reinterpret_cast<Bytef*>(bytes.data());
    stream.avail_out = static_cast<uInt>(bytes.size());
    const int status = inflate(&stream, Z_FINISH);
    bytes.resize(stream.total_out);
    inflateEnd(&stream);
    if (status != Z_STREAM_END || bytes.size() != size) return std::nullopt;
    return bytes;
}

std::string Unpacked(std::string_view bytes, const Entry& entry)
{
    const std::string broken = "it has a broken part " + entry.name;
    Require(Slice(bytes, entry.place, 4) == kPartMark, broken);
    const auto name = NumberAt(bytes, entry.place + 26, 2);
    Require(Slice(bytes, entry.place + kPartSize, name) == entry.name, broken);
    const auto start = entry.place + kPartSize + name + NumberAt(bytes, entry.place + 28, 2);
    const auto packed = Slice(bytes, start, entry.packed);
    Require(entry.method == kStored || entry.method == kDeflated, broken);
    const auto part =
        entry.method == kStored ? std::optional{std::string{packed}} : Inflated(packed, std::size_t{entry.size});
    Require(part && part->size() == entry.size, broken);
    const auto checksum = crc32(0, reinterpret_cast<const Bytef*>(part->data()), static_cast<uInt>(part->size()));
    Require(checksum == entry.checksum, broken);
    return *part;
}

std::size_t FindEnd(std::string_view bytes)
{
    const auto last = bytes.rfind(kEndMark);
    Require(last != std::string_view::npos, "there is no zip in it");
    const std::size_t comment = NumberAt(bytes, last + kEndSize - 2, 2);
    Require(last + kEndSize + comment == bytes.size(), "there is more or less than a zip in it");
    return last;
}

std::map<std::string, std::string> Parts(std::string_view bytes)
{
    std::map<std::string, std::string> parts;
    const auto end = FindEnd(bytes);
    std::size_t at = NumberAt(bytes, end + 16, 4);
    for (auto left = NumberAt(bytes, end + 10, 2); left > 0; --left, at = EndOfEntry(bytes, at)) {
        const Entry entry = ReadEntry(bytes, at);
        Require(parts.emplace(entry.name, Unpacked(bytes, entry)).second, "it has two parts " + entry.name);
    }
    return parts;
}

} // namespace

std::map<std::string, std::string> UnpackZip(const std::string& name, std::string_view bytes)
{
    try {
        return Parts(bytes);
    } catch (const Failure& failure) {
        throw Failure{name + " is no sound zip: " + failure.what()};
    }
}

} // namespace verify
