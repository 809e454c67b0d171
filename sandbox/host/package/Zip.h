// Zip archives. They are read and written here, over zlib: no library for them is packaged for this compiler.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace host
{

// One file of a zip archive, held unpacked.
struct ZipEntry
{
    std::string name; // with "/" between folders
    std::string data;
};

// A zip archive in memory; the entries keep the order in which the archive lists them.
class Zip
{
public:
    // Reads stored and deflated entries. Throws std::runtime_error when the bytes are not a sound zip archive.
    static Zip Parse(std::string_view bytes);

    [[nodiscard]] std::string Write() const;

    // The contents of the named entry, or null. Names are compared without regard to case, as packages do.
    [[nodiscard]] const std::string* Find(std::string_view name) const;

    // Replaces the named entry, or appends it.
    void Set(std::string_view name, std::string data);

    [[nodiscard]] const std::vector<ZipEntry>& Entries() const { return m_entries; }

private:
    std::vector<ZipEntry> m_entries;
};

} // namespace host
