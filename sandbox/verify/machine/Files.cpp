#include "machine/Files.h"

#include <algorithm>
#include <cctype>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <system_error>

namespace verify
{
namespace
{

namespace fs = std::filesystem;

template<class Iterator>
std::vector<fs::path> FilesOf(const fs::path& folder, std::string_view ending)
{
    std::vector<fs::path> files;
    std::error_code none;
    for (const auto& entry : Iterator{folder, fs::directory_options::skip_permission_denied, none})
        if (entry.is_regular_file(none) && Utf8Of(entry.path().filename()).ends_with(ending))
            files.push_back(entry.path());
    std::ranges::sort(files);
    return files;
}

} // namespace

fs::path PathOf(std::string_view utf8) { return fs::path{std::u8string{utf8.begin(), utf8.end()}}; }

std::string Utf8Of(const fs::path& path)
{
    const auto text = path.u8string();
    return {text.begin(), text.end()};
}

std::string SlashedUtf8Of(const fs::path& path)
{
    const auto text = path.generic_u8string();
    return {text.begin(), text.end()};
}

std::optional<std::string> ReadIfThere(const fs::path& file)
{
    std::ifstream stream{file, std::ios::binary};
    if (!stream) return std::nullopt;
    return std::string{std::istreambuf_iterator<char>{stream}, {}};
}

std::string ReadOrEmpty(const fs::path& file) { return ReadIfThere(file).value_or(std::string{}); }

void WriteBytes(const fs::path& file, std::string_view bytes)
{
    std::ofstream stream{file, std::ios::binary | std::ios::trunc};
    stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    stream.close();
    if (!stream) throw std::runtime_error{Utf8Of(file) + " cannot be written"};
}

std::vector<fs::path> FilesIn(const fs::path& folder, std::string_view ending)
{
    return FilesOf<fs::directory_iterator>(folder, ending);
}

std::vector<fs::path> FilesBelow(const fs::path& folder, std::string_view ending)
{
    return FilesOf<fs::recursive_directory_iterator>(folder, ending);
}

bool HasGuidName(const fs::path& file)
{
    constexpr std::string_view kForm = "00000000-0000-0000-0000-000000000000";
    const auto name = Utf8Of(file.filename());
    return name.size() >= kForm.size() &&
           std::ranges::equal(name.substr(0, kForm.size()), kForm, [](char c, char form) {
               return form == '-' ? c == '-' : std::isxdigit(static_cast<unsigned char>(c)) != 0;
           });
}

} // namespace verify
