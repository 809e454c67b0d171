#include "judge/LoadTimes.h"

#include "judge/Text.h"

#include <algorithm>
#include <cctype>
#include <optional>

namespace verify
{
namespace
{

constexpr std::string_view kConnected = "connected CorvaneMSOfficePowerPoint.Connect in ";
constexpr std::string_view kBegun = "--> Connect.AddinInstance_OnConnection";
constexpr std::string_view kDone = "<-- Connect.AddinInstance_OnConnection";
constexpr std::size_t kClock = 11; // in "2026-05-04 13:05:09"
constexpr std::size_t kClockSize = 8;
constexpr int kMinute = 60;
constexpr int kDay = 24 * kMinute * kMinute;

std::optional<int> NumberIn(const std::string& text)
{
    if (text.empty() || std::isdigit(static_cast<unsigned char>(text.front())) == 0) return std::nullopt;
    return std::stoi(text);
}

std::optional<int> PrintedTime(const std::string& printed)
{
    return NumberIn(CutAt(printed, kConnected).second.substr(0, kClockSize));
}

// The time of day of the line that ends so, in seconds.
std::optional<int> ClockAt(const std::vector<std::string>& lines, std::string_view ending)
{
    const auto line = std::ranges::find_if(lines, [&](const auto& one) { return Trimmed(one).ends_with(ending); });
    if (line == lines.end() || line->size() < kClock + kClockSize) return std::nullopt;
    const auto hours = NumberIn(line->substr(kClock, 2));
    const auto minutes = NumberIn(line->substr(kClock + 3, 2));
    const auto seconds = NumberIn(line->substr(kClock + 6, 2));
    if (!hours || !minutes || !seconds) return std::nullopt;
    return (*hours * kMinute + *minutes) * kMinute + *seconds;
}

// Rounded up: what begins and ends within a second takes at most that one.
std::optional<int> TracedTime(const std::string& trace)
{
    const auto lines = Lines(trace);
    const auto begun = ClockAt(lines, kBegun);
    const auto done = ClockAt(lines, kDone);
    if (!begun || !done) return std::nullopt;
    return (*done - *begun + kDay) % kDay + 1;
}

std::vector<int> TimesIn(const std::vector<std::string>& texts, std::optional<int> (*timeIn)(const std::string&))
{
    std::vector<int> times;
    for (const auto& text : texts)
        if (const auto time = timeIn(text)) times.push_back(*time);
    return times;
}

std::string Starts(const std::vector<int>& times)
{
    return " in " + std::to_string(times.size()) + (times.size() == 1 ? " start" : " starts");
}

} // namespace

std::string LoadTimesText(const std::vector<std::string>& printed, const std::vector<std::string>& traces)
{
    if (const auto times = TimesIn(printed, PrintedTime); !times.empty()) {
        const auto [least, most] = std::ranges::minmax(times);
        return std::to_string(least) + " to " + std::to_string(most) + " ms" + Starts(times);
    }
    const auto times = TimesIn(traces, TracedTime);
    return times.empty() ? "not told" : "at most " + std::to_string(std::ranges::max(times)) + " s" + Starts(times);
}

} // namespace verify
