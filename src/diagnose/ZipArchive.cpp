#include "diagnose/ZipArchive.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <string_view>
#include <utility>

namespace diagnose
{
namespace
{

// The layout of the format: a header in front of each file, all of them again in a directory, a record at the end.
constexpr std::uint32_t kLocalHeader = 0x04034b50;
constexpr std::uint32_t kDirectoryHeader = 0x02014b50;
constexpr std::uint32_t kEndRecord = 0x06054b50;
constexpr std::uint16_t kVersion = 20;
constexpr std::uint16_t kUtf8Names = 0x0800;

// Numbers with their sizes in bytes, the lowest byte first.
std::string Numbers(std::initializer_list<std::pair<std::size_t, int>> numbers)
{
    std::string bytes;
    for (auto [number, size] : numbers)
        for (; size > 0; --size, number >>= 8U)
            bytes += static_cast<char>(number & 0xFFU);
    return bytes;
}

constexpr std::array<std::uint32_t, 256> ChecksumTable()
{
    std::array<std::uint32_t, 256> table{};
    for (std::uint32_t index = 0; index < table.size(); ++index) {
        std::uint32_t value = index;
        for (int bit = 0; bit < 8; ++bit)
            value = (value & 1U) != 0 ? 0xEDB88320U ^ value >> 1U : value >> 1U;
        table[index] = value;
    }
    return table;
}

std::uint32_t Checksum(std::string_view data)
{
    static constexpr auto kTable = ChecksumTable();
    std::uint32_t sum = ~0U;
    for (const char byte : data)
        sum = kTable[(sum ^ static_cast<unsigned char>(byte)) & 0xFFU] ^ sum >> 8U;
    return ~sum;
}

std::size_t TimeNumber(const corvane::LocalTime& time)
{
    return static_cast<std::size_t>(time.hour << 11 | time.minute << 5 | time.second / 2);
}

std::size_t DateNumber(const corvane::LocalTime& time)
{
    constexpr int kFirstYear = 1980;
    constexpr int kLastYear = kFirstYear + 127;
    const int year = std::clamp(time.year, kFirstYear, kLastYear) - kFirstYear;
    return static_cast<std::size_t>(year << 9 | std::max(time.month, 1) << 5 | std::max(time.day, 1));
}

// What header and directory have in common, from the version needed to the extra field's length.
std::string CommonFields(const ArchivedFile& file)
{
    constexpr std::size_t kStored = 0;
    return Numbers({{kVersion, 2},
                    {kUtf8Names, 2},
                    {kStored, 2},
                    {TimeNumber(file.written), 2},
                    {DateNumber(file.written), 2},
                    {Checksum(file.data), 4},
                    {file.data.size(), 4},
                    {file.data.size(), 4},
                    {file.name.size(), 2},
                    {0, 2}});
}

} // namespace

std::string ZipArchive(const std::vector<ArchivedFile>& files)
{
    std::string archive;
    std::string directory;
    for (const ArchivedFile& file : files) {
        const std::string common = CommonFields(file);
        // No comment, the only disk, no attributes.
        directory += Numbers({{kDirectoryHeader, 4}, {kVersion, 2}}) + common +
                     Numbers({{0, 2}, {0, 2}, {0, 2}, {0, 4}, {archive.size(), 4}}) + file.name;
        archive += Numbers({{kLocalHeader, 4}}) + common + file.name + file.data;
    }
    const std::size_t count = files.size();
    const std::string end = Numbers(
        {{kEndRecord, 4}, {0, 2}, {0, 2}, {count, 2}, {count, 2}, {directory.size(), 4}, {archive.size(), 4}, {0, 2}});
    return archive + directory + end;
}

} // namespace diagnose
