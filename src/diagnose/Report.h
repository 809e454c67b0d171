// The report on standard output.
#pragma once

#include <string>
#include <vector>

namespace diagnose
{

// Collects lines, and writes them in one go: to a console as it is, to a file or a pipe as UTF-8.
class Report
{
public:
    void Line(const std::wstring& name, const std::wstring& text);
    void Findings(const std::vector<std::wstring>& findings);
    void Write() const;

private:
    std::wstring m_text;
};

} // namespace diagnose
