#include "diagnose/Report.h"

#include "platform/Utf8.h"

#include <windows.h>

namespace diagnose
{

void Report::Line(const std::wstring& name, const std::wstring& text) { m_text += name + L": " + text + L"\r\n"; }

void Report::Findings(const std::vector<std::wstring>& findings)
{
    Line(L"Findings", findings.empty() ? L"none" : std::to_wstring(findings.size()));
    for (std::size_t index = 0; index < findings.size(); ++index)
        m_text += std::to_wstring(index + 1) + L". " + findings[index] + L"\r\n";
}

void Report::Write() const
{
    const HANDLE output = ::GetStdHandle(STD_OUTPUT_HANDLE);
    DWORD written = 0;
    if (::WriteConsoleW(output, m_text.data(), static_cast<DWORD>(m_text.size()), &written, nullptr)) return;
    const std::string bytes = corvane::ToUtf8(m_text);
    ::WriteFile(output, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
}

} // namespace diagnose
