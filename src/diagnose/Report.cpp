#include "diagnose/Report.h"

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
    const auto length = static_cast<int>(m_text.size());
    DWORD written = 0;
    if (::WriteConsoleW(output, m_text.data(), static_cast<DWORD>(length), &written, nullptr)) return;
    std::string bytes(m_text.size() * 3, '\0');
    const int size = ::WideCharToMultiByte(CP_UTF8, 0, m_text.data(), length, bytes.data(),
                                           static_cast<int>(bytes.size()), nullptr, nullptr);
    ::WriteFile(output, bytes.data(), static_cast<DWORD>(size), &written, nullptr);
}

} // namespace diagnose
