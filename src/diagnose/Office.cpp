#include "diagnose/Office.h"

#include "diagnose/Installation.h"
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

constexpr const wchar_t* kName = L"corvanemsofficepowerpoint";
constexpr const wchar_t* kOffice = L"Software\\Microsoft\\Office\\";
constexpr const wchar_t* kOfficePolicy = L"Software\\Policies\\Microsoft\\Office\\";
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

// True when a value, in its name or in its data, names the add-in or its library.
bool NamesAddIn(const std::wstring& key, const std::wstring& value, Place place)
{
    const std::vector<std::byte> bytes = corvane::Registry::ReadBytes(key, value, place);
    std::wstring data(bytes.size() / sizeof(wchar_t), L'\0');
    for (std::size_t index = 0; index < data.size(); ++index)
        data[index] = static_cast<wchar_t>(std::to_integer<unsigned>(bytes[2 * index]) |
                                           std::to_integer<unsigned>(bytes[2 * index + 1]) << 8);
    return corvane::ToLower(value + L" " + data).find(kName) != std::wstring::npos;
}

void ReadList(const std::wstring& version, const std::wstring& list, std::vector<OfficeEntry>& entries)
{
    const std::wstring path = L"Resiliency\\" + list;
    const std::wstring key = kOffice + version + L"\\PowerPoint\\" + path;
    const std::wstring where = L"PowerPoint " + version + L", " + path;
    const bool blocks = list == L"DisabledItems" || list == L"CrashingAddinList";
    for (const std::wstring& value : ValueNames(key))
        if (NamesAddIn(key, value, {})) entries.push_back({where, blocks});
}

void ReadResiliency(const std::wstring& version, std::vector<OfficeEntry>& entries)
{
    for (const std::wstring& list : KeyNames(kOffice + version + L"\\PowerPoint\\Resiliency"))
        ReadList(version, list, entries);
}

void ReadPolicy(const std::wstring& version, Place place, std::vector<OfficeEntry>& entries)
{
    const std::wstring key = kOfficePolicy + version + L"\\PowerPoint\\Resiliency";
    const auto listed = ReadText(key + L"\\AddinList", kProgId, place);
    const bool restricted = corvane::Registry::ReadNumber(key, L"RestrictToList", place).value_or(0) == 1;
    const std::wstring where = L"policy of PowerPoint " + version + L", Resiliency\\AddinList = ";
    if (listed)
        entries.push_back({where + *listed, *listed == L"0"});
    else if (restricted)
        entries.push_back({where + L"(not listed), RestrictToList = 1", true});
}

// Trust settings that keep add-ins out; the user's own stand beside the policy's.
void ReadTrust(const std::wstring& office, const wchar_t* whose, const std::wstring& version, Place place,
               std::vector<OfficeEntry>& entries)
{
    const std::wstring key = office + version + L"\\PowerPoint\\Security";
    for (const wchar_t* name : {L"DisableAllAddins", L"RequireAddinSig"}) {
        if (corvane::Registry::ReadNumber(key, name, place).value_or(0) != 1) continue;
        std::wstring where = whose + (L" of PowerPoint " + version) + L", Security\\" + name + L" = 1";
        if (name == std::wstring_view{L"RequireAddinSig"})
            where += L" (the library has to be signed by a trusted publisher)";
        entries.push_back({std::move(where), true});
    }
}

bool IsVersion(const std::wstring& name) { return corvane::NumberIn(name).has_value(); }

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
        ReadResiliency(version, entries);
        ReadTrust(kOffice, L"settings", version, {.hive = Hive::User}, entries);
    }
    for (const Place place : {Place{.hive = Hive::User}, Place{.hive = Hive::Machine}}) {
        for (const std::wstring& version : KeyNames(L"Software\\Policies\\Microsoft\\Office", place)) {
            if (!IsVersion(version)) continue;
            ReadPolicy(version, place, entries);
            ReadTrust(kOfficePolicy, L"policy", version, place, entries);
        }
    }
    return entries;
}

} // namespace diagnose
