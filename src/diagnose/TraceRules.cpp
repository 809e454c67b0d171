#include "diagnose/TraceRules.h"

#include <algorithm>

namespace diagnose
{

std::vector<TraceEnd> TracesToHandOn(const std::vector<TraceFile>& files)
{
    std::vector<TraceEnd> ends;
    std::uint64_t left = kMostTraceBytes;
    for (const TraceFile& file : files) {
        if (left == 0 || ends.size() == kMostTraces) break;
        const std::uint64_t taken = std::min(file.size, left);
        ends.push_back({file, file.size - taken});
        left -= taken;
    }
    return ends;
}

bool IsOlder(const TraceFile& file, int days, std::uint64_t now) noexcept
{
    constexpr std::uint64_t kDay = std::uint64_t{24} * 60 * 60 * 10'000'000;
    const std::uint64_t age = now > file.written ? now - file.written : 0;
    return age > static_cast<std::uint64_t>(days) * kDay;
}

std::string WithoutCutLine(std::string text)
{
    const std::size_t end = text.find('\n');
    return text.erase(0, end == std::string::npos ? text.size() : end + 1);
}

} // namespace diagnose
