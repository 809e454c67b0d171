#include "machine/Reports.h"

#include "machine/Files.h"

#include <array>
#include <ctime>

namespace verify
{

void WriteReports(const std::filesystem::path& folder, const Report& report)
{
    std::filesystem::create_directories(folder);
    WriteBytes(folder / "report.txt", ReportText(report));
    WriteBytes(folder / "report.json", ReportJson(report));
    WriteBytes(folder / "report.html", ReportPage(report));
}

std::string TimeHere()
{
    const std::time_t now = std::time(nullptr);
    std::array<char, 32> text{};
    std::strftime(text.data(), text.size(), "%Y-%m-%d %H:%M", std::localtime(&now));
    return text.data();
}

} // namespace verify
