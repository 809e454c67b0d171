#include "package/Zip.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <stdexcept>

#include <zlib.h>

#include "base/Text.h"
#include "package/Bytes.h"

namespace host
{
namespace
{

// Record layouts of the zip format; all numbers are little-endian.
constexpr std::uint32_t kLocalHeader = 0x04034b50;
constexpr std::uint32_t kCentralHeader = 0x02014b50;
constexpr std::uint32_t kEndRecord = 0x06054b50;
constexpr std::size_t kLocalHeaderSize = 30;
constexpr std::size_t kCentralHeaderSize = 46;
constexpr std::size_t kEndRecordSize = 22;
constexpr std::uint16_t kVersionNeeded = 20;
constexpr std::uint16_t kUtf8Names = 0x0800;
constexpr std::uint16_t kStored = 0;
constexpr std::uint16_t kDeflated = 8;
constexpr std::uint16_t kDosDate = (1 << 5) | 1; // 1 January 1980, as packages write it

std::uint32_t Read16(std::string_view bytes, std::size_t at) { return ReadNumber<std::uint32_t>(bytes, at, 2); }
std::uint32_t Read32(std::string_view bytes, std::size_t at) { return ReadNumber<std::uint32_t>(bytes, at, 4); }

uInt ZlibSize(std::size_t size)
{
    if (size > std::numeric_limits<uInt>::max()) throw std::runtime_error{"a part is too large"};
    return static_cast<uInt>(size);
}

Bytef* ZlibInput(std::string_view bytes)
{
    return reinterpret_cast<Bytef*>(const_cast<char*>(bytes.data())); // zlib does not write to its input
}

using ZlibStep = int (*)(z_streamp, int);
using ZlibEnd = int (*)(z_streamp);

// What a stream that is set up makes of the data, in one step and in no more than this room.
std::string Transform(z_stream& stream, ZlibStep step, ZlibEnd end, std::string_view data, std::size_t room)
{
    std::string out(room, '\0');
    stream.next_in = ZlibInput(data);
    stream.avail_in = ZlibSize(data.size());
    stream.next_out = reinterpret_cast<Bytef*>(out.data());
    stream.avail_out = ZlibSize(out.size());
    const int result = step(&stream, Z_FINISH);
    end(&stream);
    if (result != Z_STREAM_END) throw std::runtime_error{"a part cannot be packed or unpacked"};
    out.resize(stream.total_out);
    return out;
}

std::string Inflate(std::string_view packed, std::size_t size)
{
    z_stream stream{};
    if (inflateInit2(&stream, -MAX_WBITS) != Z_OK) throw std::runtime_error{"zlib does not start"};
    std::string out = Transform(stream, inflate, inflateEnd, packed, size + 1); // so that a longer one is noticed
    if (out.size() != size) throw std::runtime_error{"a packed part is damaged"};
    return out;
}

std::string Deflate(std::string_view data)
{
    z_stream stream{};
    if (deflateInit2(&stream, Z_DEFAULT_COMPRESSION, Z_DEFLATED, -MAX_WBITS, 8, Z_DEFAULT_STRATEGY) != Z_OK)
        throw std::runtime_error{"zlib does not start"};
    return Transform(stream, deflate, deflateEnd, data, deflateBound(&stream, static_cast<uLong>(data.size())));
}

std::uint32_t Checksum(std::string_view data)
{
    return static_cast<std::uint32_t>(crc32(0, ZlibInput(data), ZlibSize(data.size())));
}

std::size_t FindEndRecord(std::string_view bytes)
{
    constexpr std::size_t kLongestComment = 0xffff;
    if (bytes.size() < kEndRecordSize) throw std::runtime_error{"this is not a zip archive"};
    const std::size_t last = bytes.size() - kEndRecordSize;
    const std::size_t first = last > kLongestComment ? last - kLongestComment : 0;
    for (std::size_t at = last + 1; at-- > first;)
        if (Read32(bytes, at) == kEndRecord) return at;
    throw std::runtime_error{"this is not a zip archive"};
}

ZipEntry ReadEntry(std::string_view bytes, std::size_t central)
{
    const std::uint32_t method = Read16(bytes, central + 10);
    const std::uint32_t packedSize = Read32(bytes, central + 20);
    const std::uint32_t size = Read32(bytes, central + 24);
    const std::uint32_t local = Read32(bytes, central + 42);
    if (Read32(bytes, local) != kLocalHeader) throw std::runtime_error{"the zip directory is damaged"};
    // The local header's own name and extra field may differ in length from the directory's.
    const std::size_t start = local + kLocalHeaderSize + Read16(bytes, local + 26) + Read16(bytes, local + 28);
    const std::string_view packed = Slice(bytes, start, packedSize);

    ZipEntry entry{std::string{Slice(bytes, central + kCentralHeaderSize, Read16(bytes, central + 28))}, {}};
    if (method == kStored)
        entry.data = packed;
    else if (method == kDeflated)
        entry.data = Inflate(packed, size);
    else
        throw std::runtime_error{"a part is packed by an unknown method"};
    if (Checksum(entry.data) != Read32(bytes, central + 16)) throw std::runtime_error{"a part fails its checksum"};
    return entry;
}

auto IsNamed(std::string_view name)
{
    return [wanted = Widen(name)](const ZipEntry& entry) { return SameText(Widen(entry.name), wanted); };
}

// The fields that the local header and the directory have in common, from "version needed" to the extra length.
std::string CommonFields(const ZipEntry& entry, std::uint16_t method, std::size_t packedSize)
{
    return Numbers({{kVersionNeeded, 2},
                    {kUtf8Names, 2},
                    {method, 2},
                    {0, 2},
                    {kDosDate, 2},
                    {Checksum(entry.data), 4},
                    {ZlibSize(packedSize), 4},
                    {ZlibSize(entry.data.size()), 4},
                    {ZlibSize(entry.name.size()), 2},
                    {0, 2}});
}

} // namespace

Zip Zip::Parse(std::string_view bytes)
{
    const std::size_t end = FindEndRecord(bytes);
    const std::uint32_t count = Read16(bytes, end + 10);
    std::size_t at = Read32(bytes, end + 16);
    Zip zip;
    for (std::uint32_t i = 0; i < count; ++i) {
        if (Read32(bytes, at) != kCentralHeader) throw std::runtime_error{"the zip directory is damaged"};
        zip.m_entries.push_back(ReadEntry(bytes, at));
        at += kCentralHeaderSize + Read16(bytes, at + 28) + Read16(bytes, at + 30) + Read16(bytes, at + 32);
    }
    return zip;
}

std::string Zip::Write() const
{
    std::string out;
    std::string directory;
    for (const ZipEntry& entry : m_entries) {
        const std::string deflated = Deflate(entry.data);
        const bool smaller = deflated.size() < entry.data.size();
        const std::string& packed = smaller ? deflated : entry.data;
        const std::string fields = CommonFields(entry, smaller ? kDeflated : kStored, packed.size());

        // Between the common fields and the place: comment length, disk, internal and external attributes.
        directory.append(Numbers({{kCentralHeader, 4}, {kVersionNeeded, 2}})).append(fields);
        directory.append(Numbers({{0, 10}, {ZlibSize(out.size()), 4}})).append(entry.name);
        out.append(Numbers({{kLocalHeader, 4}})).append(fields).append(entry.name).append(packed);
    }
    const std::size_t count = ZlibSize(m_entries.size());
    const std::string end = Numbers({{kEndRecord, 4}, {0, 4}, {count, 2}, {count, 2}, {ZlibSize(directory.size()), 4}});
    return out + directory + end + Numbers({{ZlibSize(out.size()), 4}, {0, 2}});
}

const std::string* Zip::Find(std::string_view name) const
{
    const auto found = std::ranges::find_if(m_entries, IsNamed(name));
    return found == m_entries.end() ? nullptr : &found->data;
}

void Zip::Set(std::string_view name, std::string data)
{
    const auto found = std::ranges::find_if(m_entries, IsNamed(name));
    if (found == m_entries.end())
        m_entries.push_back({std::string{name}, std::move(data)});
    else
        found->data = std::move(data);
}

} // namespace host
