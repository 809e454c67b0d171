#include "core/Files.h"

#include <chrono>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <thread>

namespace server
{

namespace
{

namespace fs = std::filesystem;

// Tries again for a second; whether it worked.
template<class Try>
bool Patiently(Try attempt)
{
    constexpr int kAttempts = 100;
    for (int count = 0; count < kAttempts; ++count) {
        if (attempt()) return true;
        std::this_thread::sleep_for(std::chrono::milliseconds{10});
    }
    return attempt();
}

} // namespace

fs::path PathOf(std::string_view utf8) { return std::u8string{utf8.begin(), utf8.end()}; }

std::string Utf8Of(const fs::path& path)
{
    const auto text = path.generic_u8string();
    return {text.begin(), text.end()};
}

std::optional<std::string> ReadIfThere(const fs::path& path)
{
    std::ifstream file;
    const bool sure = Patiently([&] {
        file.clear();
        file.open(path, std::ios::binary);
        return file.is_open() || !fs::exists(path);
    });
    if (!sure) throw std::runtime_error{"Cannot read " + Utf8Of(path)};
    if (!file.is_open()) return std::nullopt;
    return std::string{std::istreambuf_iterator<char>{file}, {}};
}

void WriteFile(const fs::path& path, std::string_view bytes)
{
    std::ofstream file{path, std::ios::binary};
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    if (!file.flush()) throw std::runtime_error{"Cannot write " + Utf8Of(path)};
}

void Rename(const fs::path& from, const fs::path& to)
{
    std::error_code problem;
    const auto renamed = Patiently([&] {
        fs::rename(from, to, problem);
        return !problem;
    });
    if (!renamed) throw fs::filesystem_error{"Cannot rename", from, to, problem};
}

} // namespace server
