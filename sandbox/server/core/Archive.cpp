#include "core/Archive.h"

#include <array>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace server
{

namespace
{

namespace fs = std::filesystem;

constexpr std::size_t kLongestFileName = 160;

std::string ReadFile(const fs::path& path)
{
    std::ifstream file{path, std::ios::binary};
    if (!file) throw std::runtime_error{"Cannot read " + path.string()};
    return {std::istreambuf_iterator<char>{file}, {}};
}

void WriteFile(const fs::path& path, std::string_view bytes)
{
    std::ofstream file{path, std::ios::binary};
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    if (!file.flush()) throw std::runtime_error{"Cannot write " + path.string()};
}

nlohmann::ordered_json ReadJson(const fs::path& path)
{
    try {
        return nlohmann::ordered_json::parse(ReadFile(path));
    } catch (const nlohmann::json::exception& problem) {
        throw std::runtime_error{path.string() + ": " + problem.what()};
    }
}

bool MustBeEscaped(char c, bool first)
{
    return (c >= 0 && c < ' ') || c == 0x7F || std::string_view{"%/\\:*?\"<>|"}.find(c) != std::string_view::npos ||
           (first && c == '.');
}

std::string FolderName(const Version& version)
{
    return nlohmann::json(version.kind).get<std::string>() + ' ' + std::to_string(version.targetId);
}

std::string Hex(unsigned value, const char* layout)
{
    std::array<char, 16> text{};
    std::snprintf(text.data(), text.size(), layout, value);
    return text.data();
}

constexpr std::array<std::uint32_t, 256> CrcTable()
{
    std::array<std::uint32_t, 256> table{};
    for (std::uint32_t n = 0; n < table.size(); ++n) {
        table[n] = n;
        for (int bit = 0; bit < 8; ++bit)
            table[n] = (table[n] >> 1) ^ ((table[n] & 1) != 0 ? 0xEDB88320U : 0U);
    }
    return table;
}

} // namespace

std::string SafeFileName(std::string_view name)
{
    std::string safe;
    for (const char c : name)
        safe += MustBeEscaped(c, safe.empty()) ? Hex(static_cast<unsigned char>(c), "%%%02X") : std::string(1, c);
    if (safe.empty()) return "%";
    return safe.size() <= kLongestFileName ? safe : safe.substr(0, kLongestFileName) + '%' + Crc32(name);
}

std::string Crc32(std::string_view bytes)
{
    static constexpr auto kTable = CrcTable();
    std::uint32_t crc = 0xFFFFFFFFU;
    for (const char c : bytes)
        crc = (crc >> 8) ^ kTable[(crc ^ static_cast<unsigned char>(c)) & 0xFFU];
    return Hex(~crc, "%08x");
}

Archive::Archive(fs::path folder) : m_folder{std::move(folder)}
{
    fs::create_directories(m_folder / "transfer");
    fs::create_directories(m_folder / "versions");
    const auto list = m_folder / "versions.json";
    if (fs::exists(list))
        m_versions = ReadJson(list).get<std::vector<Version>>();
    else
        WriteList();
}

nlohmann::json Archive::Settings() const
{
    const auto path = m_folder / "settings.json";
    return fs::exists(path) ? nlohmann::json(ReadJson(path)) : nlohmann::json::object();
}

fs::path Archive::TransferPath(std::string_view name) const { return m_folder / "transfer" / SafeFileName(name); }

void Archive::KeepUpload(std::string_view name, std::string_view bytes) const { WriteFile(TransferPath(name), bytes); }

bool Archive::HasUpload(std::string_view name) const { return fs::exists(TransferPath(name)); }

Version Archive::Record(Version version)
{
    const auto folder = fs::path{"versions"} / FolderName(version);
    const auto stored = folder / SafeFileName(std::to_string(version.number) + ' ' + version.file);
    const auto bytes = ReadFile(TransferPath(version.file));
    fs::create_directories(m_folder / folder);
    fs::rename(TransferPath(version.file), m_folder / stored);
    version.storedAs = stored.string();
    version.size = bytes.size();
    version.crc32 = Crc32(bytes);
    m_versions.push_back(version);
    WriteList();
    return version;
}

std::optional<std::string> Archive::Read(const Version& version) const
{
    if (version.storedAs.empty()) return std::nullopt;
    return ReadFile(m_folder / version.storedAs);
}

// Written beside and renamed, so that a reader never meets half a list.
void Archive::WriteList() const
{
    const auto list = m_folder / "versions.json";
    const auto fresh = m_folder / "versions.json.new";
    WriteFile(fresh, nlohmann::ordered_json(m_versions).dump(2) + '\n');
    fs::rename(fresh, list);
}

} // namespace server
