#include "core/Archive.h"

#include "core/Files.h"
#include "core/Text.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <stdexcept>

namespace server
{

namespace
{

namespace fs = std::filesystem;

constexpr std::size_t kLongestFileName = 120; // with that of its folder it stays below what Windows takes

std::string ReadFile(const fs::path& path)
{
    auto bytes = ReadIfThere(path);
    if (!bytes) throw std::runtime_error{"Cannot read " + Utf8Of(path)};
    return std::move(*bytes);
}

nlohmann::ordered_json ReadJson(const fs::path& path)
{
    try {
        return nlohmann::ordered_json::parse(ReadFile(path));
    } catch (const nlohmann::json::exception& problem) {
        throw std::runtime_error{Utf8Of(path) + ": " + problem.what()};
    }
}

// Whether Windows takes the name for that of a device, as it does whatever extension follows.
bool IsDevice(std::string_view name)
{
    constexpr std::array<std::string_view, 4> kDevices{"con", "prn", "aux", "nul"};
    const auto stem = name.substr(0, name.find_first_of(" ."));
    const bool numbered = stem.size() == 4 && stem.back() >= '0' && stem.back() <= '9';
    return std::ranges::any_of(kDevices, [&](auto device) { return EqualNoCase(stem, device); }) ||
           (numbered && (EqualNoCase(stem.substr(0, 3), "com") || EqualNoCase(stem.substr(0, 3), "lpt")));
}

bool MustBeEscaped(std::string_view name, std::size_t at)
{
    const char c = name[at];
    return (c >= 0 && c < ' ') || c == 0x7F || std::string_view{"%/\\:*?\"<>|"}.find(c) != std::string_view::npos ||
           (at == 0 && (c == '.' || IsDevice(name))) || (at + 1 == name.size() && (c == '.' || c == ' '));
}

// As many bytes of a longer UTF-8 text as make whole letters, up to this number.
std::string_view Start(std::string_view text, std::size_t size)
{
    while ((static_cast<unsigned char>(text[size]) & 0xC0U) == 0x80U)
        --size;
    return text.substr(0, size);
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
    for (std::size_t at = 0; at < name.size(); ++at)
        safe +=
            MustBeEscaped(name, at) ? Hex(static_cast<unsigned char>(name[at]), "%%%02X") : std::string(1, name[at]);
    if (safe.empty()) return "%";
    if (safe.size() <= kLongestFileName) return safe;
    return std::string{Start(safe, kLongestFileName)} + '%' + Crc32(name);
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

fs::path Archive::TransferPath(std::string_view name) const
{
    return m_folder / "transfer" / PathOf(SafeFileName(name));
}

void Archive::KeepUpload(std::string_view name, std::string_view bytes) const { WriteFile(TransferPath(name), bytes); }

bool Archive::HasUpload(std::string_view name) const { return fs::exists(TransferPath(name)); }

Version Archive::Record(Version version)
{
    const auto folder = fs::path{"versions"} / PathOf(FolderName(version));
    const auto stored = folder / PathOf(SafeFileName(std::to_string(version.number) + ' ' + version.file));
    const auto bytes = ReadFile(TransferPath(version.file));
    fs::create_directories(m_folder / folder);
    Rename(TransferPath(version.file), m_folder / stored);
    version.storedAs = Utf8Of(stored);
    version.size = bytes.size();
    version.crc32 = Crc32(bytes);
    m_versions.push_back(version);
    WriteList();
    return version;
}

std::optional<std::string> Archive::Read(const Version& version) const
{
    if (version.storedAs.empty()) return std::nullopt;
    return ReadFile(m_folder / PathOf(version.storedAs));
}

// Written beside and renamed, so that a reader never meets half a list.
void Archive::WriteList() const
{
    const auto list = m_folder / "versions.json";
    const auto fresh = m_folder / "versions.json.new";
    WriteFile(fresh, nlohmann::ordered_json(m_versions).dump(2) + '\n');
    Rename(fresh, list);
}

} // namespace server
