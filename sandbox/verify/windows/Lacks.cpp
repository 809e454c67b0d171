#include "windows/Lacks.h"

#include "windows/RegistryNote.h"

#include <windows.h>

#include <objbase.h>

#include <algorithm>

namespace verify
{
namespace
{

bool HasOutlook()
{
    CLSID found{};
    return SUCCEEDED(::CLSIDFromProgID(L"Outlook.Application", &found));
}

bool Mentions(const Scenario& scenario, std::string_view words)
{
    return scenario.text.find(words) != std::string::npos;
}

bool WritesPolicies(const Scenario& scenario)
{
    const auto values = scenario.All("registry");
    return std::ranges::any_of(values, [](const auto& one) { return one.starts_with("Software\\Policies"); });
}

struct Lack
{
    bool (*keepsOff)(const Scenario& scenario);
    const char* reason;
};
constexpr Lack kLacks[] = {
    {[](const Scenario& one) { return Mentions(one, R"(\\corvane\documents\)"); },
     R"(there is no share \\corvane\documents)"},
    {[](const Scenario& one) { return one.One("run").find("--dpi") != std::string::npos; },
     "it wants another resolution of the screen"},
    {[](const Scenario& one) { return Mentions(one, "#! set outlook=") && HasOutlook(); },
     "Outlook is installed, where a stand-in is wanted"},
    {[](const Scenario& one) { return Mentions(one, "mail.client=express") && HasOutlook(); },
     "Outlook is installed, where none is wanted"},
    {[](const Scenario& one) { return WritesPolicies(one) && !MayWriteBelow(L"Software\\Policies"); },
     "only an administrator may write the policies that it wants"}};

} // namespace

std::string LackFor(const Scenario& scenario)
{
    const auto* const lack = std::ranges::find_if(kLacks, [&](const Lack& one) { return one.keepsOff(scenario); });
    return lack == std::end(kLacks) ? "" : lack->reason;
}

} // namespace verify
