#include "diagnose/Facts.h"

#include <algorithm>

namespace diagnose
{
namespace
{

using Texts = std::vector<std::wstring>;

std::wstring Bits(int bits) { return std::to_wstring(bits) + L"-bit"; }
std::wstring PackageFor(int bits) { return bits == 32 ? L"x86" : L"x64"; }

void JudgeRegistration(const Facts& facts, Texts& findings)
{
    const int wanted = facts.powerPoint.bits;
    if (facts.registrations.empty()) {
        findings.push_back(L"The add-in is not registered. Install the " +
                           (wanted == 0 ? L"package of PowerPoint's bitness." : PackageFor(wanted) + L" package."));
        return;
    }
    const bool fits = std::ranges::any_of(
        facts.registrations, [&](const Registration& entry) { return wanted == 0 || entry.bits == wanted; });
    if (!fits)
        findings.push_back(L"Wrong bitness: PowerPoint is " + Bits(wanted) + L", the add-in is registered for " +
                           Bits(facts.registrations.front().bits) + L" only. Install the " + PackageFor(wanted) +
                           L" package.");
}

void JudgeLibraries(const Facts& facts, Texts& findings)
{
    for (const Registration& entry : facts.registrations) {
        if (!entry.libraryExists)
            findings.push_back(L"The library registered for " + entry.where + L" is not there: " + entry.library +
                               L". Repair the installation.");
        else if (entry.libraryBits != 0 && entry.libraryBits != entry.bits)
            findings.push_back(L"Wrong bitness: the library registered for " + entry.where + L" is " +
                               Bits(entry.libraryBits) + L". Reinstall the package.");
    }
}

// PowerPoint takes the user's entry before the machine's, and of the machine's those of its own bitness.
void JudgeAddIns(const Facts& facts, Texts& findings)
{
    const int bits = facts.powerPoint.bits;
    const auto entry = std::ranges::find_if(facts.addIns, [&](const AddInEntry& candidate) {
        return candidate.bits == 0 || bits == 0 || candidate.bits == bits;
    });
    if (entry == facts.addIns.end()) {
        if (!facts.registrations.empty())
            findings.emplace_back(L"PowerPoint's list of add-ins lacks the add-in. Repair the installation.");
        return;
    }
    if (entry->loadBehavior == 3) return;
    findings.push_back(L"LoadBehavior is " + std::to_wstring(entry->loadBehavior) + L" (" + entry->where +
                       L"): PowerPoint or its user has switched the add-in off. Tick it in File, Options, Add-ins, "
                       L"COM Add-ins, or set the value to 3.");
}

void JudgeOffice(const Facts& facts, Texts& findings)
{
    for (const OfficeEntry& entry : facts.officeEntries)
        if (entry.blocks)
            findings.push_back(L"Office keeps the add-in from loading: " + entry.where +
                               L". Enable it in File, Options, Add-ins, Disabled Items, or correct the policy.");
}

} // namespace

std::vector<std::wstring> FindingsOf(const Facts& facts)
{
    Texts findings;
    JudgeRegistration(facts, findings);
    JudgeLibraries(facts, findings);
    JudgeAddIns(facts, findings);
    JudgeOffice(facts, findings);
    for (const std::wstring& component : facts.missingComponents)
        findings.push_back(L"A component of Windows is missing: " + component + L". Repair Windows, or install MSXML.");
    if (facts.server && !facts.server->good)
        findings.push_back(L"The server " + facts.server->server + L" cannot be used: " + facts.server->outcome);
    return findings;
}

} // namespace diagnose
