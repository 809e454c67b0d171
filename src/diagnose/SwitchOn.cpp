#include "diagnose/SwitchOn.h"

#include "diagnose/Installation.h"
#include "diagnose/Office.h"
#include "platform/Procedure.h"
#include "platform/Registry.h"

#include <algorithm>

namespace diagnose
{
namespace
{

// What the registry refuses stays a finding.
void Take(const SwitchOnStep& step)
{
    if (step.removes)
        corvane::Registry::DeleteValue(step.key, step.value);
    else
        corvane::Ignoring([&] { corvane::Registry::WriteNumber(step.key, step.value, kLoadsAtStart); });
}

} // namespace

std::wstring SwitchOn(Facts& facts)
{
    const std::vector<SwitchOnStep> steps = StepsToSwitchOn(facts);
    std::ranges::for_each(steps, Take);
    facts.addIns = FindAddIns();
    facts.officeEntries = FindOfficeEntries();
    const std::vector<SwitchOnStep> left = StepsToSwitchOn(facts);
    std::wstring undone;
    for (const SwitchOnStep& step : steps)
        if (std::ranges::find(left, step) == left.end()) undone += step.what + L"; ";
    if (steps.empty()) return L"nothing of this user was off";
    return undone.empty() ? L"nothing, the registry refuses it" : undone + L"restart PowerPoint";
}

} // namespace diagnose
