#include "shell/RequestLog.h"

#include "core/Files.h"
#include "core/Text.h"

#include <array>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <nlohmann/json.hpp>
#include <stdexcept>

namespace server
{

namespace
{

std::string Base64(std::string_view bytes)
{
    constexpr std::string_view kDigits = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string text;
    text.reserve((bytes.size() + 2) / 3 * 4);
    const auto byte = [&](std::size_t at) { return at < bytes.size() ? static_cast<unsigned char>(bytes[at]) : 0U; };
    for (std::size_t at = 0; at < bytes.size(); at += 3) {
        const std::uint32_t three = (byte(at) << 16) | (byte(at + 1) << 8) | byte(at + 2);
        for (int shift = 18; shift >= 0; shift -= 6)
            text += kDigits[(three >> shift) & 0x3F];
    }
    if (const auto rest = bytes.size() % 3; rest != 0) text.replace(text.size() - (3 - rest), 3 - rest, 3 - rest, '=');
    return text;
}

std::string UtcTime()
{
    using namespace std::chrono;
    const auto now = floor<milliseconds>(system_clock::now());
    const year_month_day date{floor<days>(now)};
    const hh_mm_ss clock{now - floor<days>(now)};
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "%04d-%02u-%02uT%02d:%02d:%02d.%03dZ", int{date.year()},
                  unsigned{date.month()}, unsigned{date.day()}, static_cast<int>(clock.hours().count()),
                  static_cast<int>(clock.minutes().count()), static_cast<int>(clock.seconds().count()),
                  static_cast<int>(clock.subseconds().count()));
    return text.data();
}

} // namespace

std::string LogLine(const Request& request, int status, std::string_view time)
{
    auto headers = nlohmann::ordered_json::array();
    for (const auto& [name, value] : request.headers)
        headers.push_back({Latin1ToUtf8(name), Latin1ToUtf8(value)});
    nlohmann::ordered_json line;
    line["time"] = time;
    line["method"] = Latin1ToUtf8(request.method);
    line["target"] = Latin1ToUtf8(request.target);
    line["headers"] = std::move(headers);
    line["body"] = Base64(request.body);
    line["status"] = status;
    return line.dump();
}

RequestLog::RequestLog(const std::filesystem::path& file)
{
    if (file.empty()) return;
    m_file.open(file, std::ios::app | std::ios::binary);
    if (!m_file) throw std::runtime_error{"Cannot write the log file " + Utf8Of(file)};
}

void RequestLog::Write(const Request& request, int status)
{
    if (!m_file.is_open()) return;
    m_file << LogLine(request, status, UtcTime()) << '\n' << std::flush;
}

} // namespace server
