#include "diagnose/Office.h"

#include "diagnose/Installation.h"
#include "diagnose/OfficeRules.h"
#include "platform/Registry.h"
#include "support/Conversions.h"

namespace diagnose
{
namespace
{

using corvane::Registry::Hive;
using corvane::Registry::KeyNames;
using corvane::Registry::Place;
using corvane::Registry::ReadText;
using corvane::Registry::ValueNames;
using corvane::Registry::View;

constexpr const wchar_t* kOffice = L"Software\\Microsoft\\Office\\";

// Where administrators set policies: by Group Policy, and by the service that Office itself asks.
struct PolicyRoot
{
    const wchar_t* name;
    const wchar_t* key;
};
constexpr PolicyRoot kPolicies[] = {{L"policy", L"Software\\Policies\\Microsoft\\Office"},
                                    {L"cloud policy", L"Software\\Policies\\Microsoft\\Cloud\\Office"}};
constexpr Place kPlaces[] = {{Hive::User, View::Own}, {Hive::Machine, View::Bits64}, {Hive::Machine, View::Bits32}};

int BitsOfPlatform(const std::wstring& platform)
{
    if (corvane::EqualIgnoringCase(platform, L"x64")) return 64;
    return corvane::EqualIgnoringCase(platform, L"x86") ? 32 : 0;
}

std::wstring ProgramPath()
{
    const std::wstring key = L"Software\\Microsoft\\Windows\\CurrentVersion\\App Paths\\powerpnt.exe";
    for (const Place place : kPlaces)
        if (const auto path = ReadText(key, L"", place)) return *path;
    return {};
}

// The bitness that Office's installation declares.
int DeclaredBits()
{
    for (const Place place : kPlaces) {
        const std::wstring office = kOffice;
        if (const auto platform = ReadText(office + L"ClickToRun\\Configuration", L"Platform", place))
            return BitsOfPlatform(*platform);
        for (const wchar_t* version : {L"16.0", L"15.0", L"14.0"})
            if (const auto bitness = ReadText(office + version + L"\\Outlook", L"Bitness", place))
                return BitsOfPlatform(*bitness);
    }
    return 0;
}

void ReadList(const std::wstring& version, const std::wstring& list, std::vector<OfficeEntry>& entries)
{
    const std::wstring path = L"Resiliency\\" + list;
    const std::wstring key = kOffice + version + L"\\PowerPoint\\" + path;
    const std::wstring where = L"PowerPoint " + version + L", " + path;
    for (const std::wstring& value : ValueNames(key))
        if (NamesAddIn(value, corvane::Registry::ReadBytes(key, value)))
            entries.push_back({where, IsBlockingList(list), key, value});
}

void ReadPolicy(const std::wstring& office, const std::wstring& whose, Place place, std::vector<OfficeEntry>& entries)
{
    const std::wstring key = office + L"\\PowerPoint\\Resiliency";
    const auto entry = ManagedEntry(whose, ReadText(key + L"\\AddinList", kProgId, place),
                                    corvane::Registry::ReadNumber(key, L"RestrictToList", place).value_or(0) == 1);
    if (entry) entries.push_back(*entry);
}

// Trust settings that keep add-ins out; the user's own stand beside the policy's.
void ReadTrust(const std::wstring& office, const std::wstring& whose, Place place, std::vector<OfficeEntry>& entries)
{
    const std::wstring key = office + L"\\PowerPoint\\Security";
    for (const wchar_t* name : {L"DisableAllAddins", L"RequireAddinSig"}) {
        if (corvane::Registry::ReadNumber(key, name, place).value_or(0) != 1) continue;
        std::wstring where = whose + L", Security\\" + name + L" = 1";
        if (name == std::wstring_view{L"RequireAddinSig"})
            where += L" (the library has to be signed by a trusted publisher)";
        entries.push_back({.where = std::move(where), .blocks = true, .key = {}, .value = {}});
    }
}

bool IsVersion(const std::wstring& name) { return corvane::NumberIn(name).has_value(); }

void ReadPolicies(const PolicyRoot& root, Place place, std::vector<OfficeEntry>& entries)
{
    for (const std::wstring& version : KeyNames(root.key, place)) {
        if (!IsVersion(version)) continue;
        const std::wstring office = root.key + (L"\\" + version);
        const std::wstring whose = root.name + (L" of PowerPoint " + version);
        ReadPolicy(office, whose, place, entries);
        ReadTrust(office, whose, place, entries);
    }
}

} // namespace

PowerPoint FindPowerPoint()
{
    PowerPoint found{.program = ProgramPath(), .bits = 0};
    found.bits = BitsOf(found.program);
    if (found.bits == 0) found.bits = DeclaredBits();
    return found;
}

std::vector<OfficeEntry> FindOfficeEntries()
{
    std::vector<OfficeEntry> entries;
    for (const std::wstring& version : KeyNames(L"Software\\Microsoft\\Office")) {
        if (!IsVersion(version)) continue;
        for (const std::wstring& list : KeyNames(kOffice + version + L"\\PowerPoint\\Resiliency"))
            ReadList(version, list, entries);
        ReadTrust(kOffice + version, L"settings of PowerPoint " + version, {.hive = Hive::User}, entries);
    }
    for (const PolicyRoot& root : kPolicies)
        for (const Place place : {Place{.hive = Hive::User}, Place{.hive = Hive::Machine}})
            ReadPolicies(root, place, entries);
    return entries;
}

} // namespace diagnose
