#include "companion/Errand.h"

#include <sstream>

#include <windows.h>

#include "companion/Agreement.h"
#include "platform/Utf8.h"

namespace corvane::companion
{
namespace
{

std::wstring Variable(const wchar_t* name)
{
    std::wstring value(::GetEnvironmentVariableW(name, nullptr, 0), L'\0');
    value.resize(::GetEnvironmentVariableW(name, value.data(), static_cast<DWORD>(value.size())));
    return value;
}

} // namespace

std::optional<Errand> ReadErrand()
{
    Errand errand{Variable(kScenarioVariable), Variable(kFolderVariable), {}};
    if (errand.scenario.empty() || errand.folder.empty()) return std::nullopt;
    std::istringstream lines{ToUtf8(Variable(kSettingsVariable))};
    for (std::string line; std::getline(lines, line);)
        if (const std::size_t equals = line.find('='); equals != std::string::npos)
            errand.settings[line.substr(0, equals)] = line.substr(equals + 1);
    return errand;
}

} // namespace corvane::companion
