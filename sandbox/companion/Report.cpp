#include "companion/Report.h"

#include <filesystem>

#include "companion/Agreement.h"
#include "platform/Utf8.h"

namespace corvane::companion
{

Report::Report(const std::wstring& folder)
    : m_file{std::filesystem::path{folder + L"\\" + kReportName}, std::ios::binary}
{}

void Report::Tell(const std::wstring& line)
{
    const std::lock_guard lock{m_mutex};
    m_file << ToUtf8(line) << "\r\n" << std::flush;
}

} // namespace corvane::companion
