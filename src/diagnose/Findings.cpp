#include "diagnose/Facts.h"

#include <algorithm>

namespace diagnose
{
namespace
{

using Texts = std::vector<std::wstring>;

std::wstring Bits(int bits) { return std::to_wstring(bits) + L"-bit"; }
std::wstring PackageFor(int bits) { return bits == 32 ? L"x86" : L"x64"; }

bool IsUsers(const AddInEntry& entry) { return entry.isUsers; }

void JudgeRegistration(const Facts& facts, Texts& findings)
{
    const int wanted = facts.powerPoint.bits;
    if (facts.registrations.empty() && std::ranges::any_of(facts.addIns, IsUsers)) {
        findings.emplace_back(
            L"PowerPoint's list of add-ins names the add-in (user), but it is not registered on this PC: a profile "
            L"that roams brings the list only. Install the machine package, or the user's on this PC as well.");
        return;
    }
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

std::wstring LoadBehaviorFinding(const Facts& facts, const AddInEntry& entry)
{
    std::wstring text = L"LoadBehavior is " + std::to_wstring(entry.loadBehavior) + L" (" + entry.where +
                        L"): PowerPoint or its user has switched the add-in off";
    const bool isForUserOnly = std::ranges::all_of(facts.registrations, &Registration::isUsers);
    if (isForUserOnly)
        text += L", or PowerPoint was started elevated, where a user's registration does not count (the machine "
                L"package helps there)";
    return text + (entry.isUsers ? L". Run corvane-diagnose --switch-on, then restart PowerPoint."
                                 : L". Repair the installation, then restart PowerPoint.");
}

// PowerPoint takes the user's entry before the machine's, and of the machine's those of its own bitness.
void JudgeAddIns(const Facts& facts, Texts& findings)
{
    if (facts.registrations.empty()) return;
    const int bits = facts.powerPoint.bits;
    const auto entry = std::ranges::find_if(facts.addIns, [&](const AddInEntry& candidate) {
        return candidate.bits == 0 || bits == 0 || candidate.bits == bits;
    });
    if (entry == facts.addIns.end()) {
        findings.emplace_back(L"PowerPoint's list of add-ins lacks the add-in. Repair the installation.");
        return;
    }
    if (entry->loadBehavior != kLoadsAtStart) findings.push_back(LoadBehaviorFinding(facts, *entry));
}

bool IsRemovable(const OfficeEntry& entry) { return entry.blocks && !entry.key.empty(); }

void JudgeOffice(const Facts& facts, Texts& findings)
{
    for (const OfficeEntry& entry : facts.officeEntries)
        if (entry.blocks)
            findings.push_back(L"Office keeps the add-in from loading: " + entry.where +
                               (IsRemovable(entry) ? L". Run corvane-diagnose --switch-on, then restart PowerPoint."
                                                   : L". Correct the policy or PowerPoint's Trust Center."));
}

void JudgeServer(const ServerAnswer& answer, Texts& findings)
{
    if (answer.good) return;
    constexpr int kSignInWanted = 401;
    findings.push_back(L"The server " + answer.server + L" cannot be used: " + answer.outcome +
                       (answer.status == kSignInWanted ? L". Windows signs in by itself in the intranet zone only: add "
                                                         L"the server to it."
                                                       : L""));
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
    if (facts.server) JudgeServer(*facts.server, findings);
    return findings;
}

std::vector<SwitchOnStep> StepsToSwitchOn(const Facts& facts)
{
    std::vector<SwitchOnStep> steps;
    for (const AddInEntry& entry : facts.addIns)
        if (entry.isUsers && entry.loadBehavior != kLoadsAtStart)
            steps.push_back({L"LoadBehavior for " + entry.where, kAddInKey, kLoadBehavior, false});
    for (const OfficeEntry& entry : facts.officeEntries)
        if (IsRemovable(entry)) steps.push_back({entry.where, entry.key, entry.value, true});
    return steps;
}

std::wstring WindowsName(std::wstring productName, std::int32_t build)
{
    constexpr std::wstring_view kTen = L"Windows 10";
    constexpr std::int32_t kFirstEleven = 22000;
    if (build >= kFirstEleven && productName.starts_with(kTen)) productName.replace(kTen.size() - 1, 1, L"1");
    return productName;
}

} // namespace diagnose
