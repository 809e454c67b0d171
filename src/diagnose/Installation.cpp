#include "diagnose/Installation.h"

#include "diagnose/ProgramBits.h"
#include "platform/Files.h"
#include "platform/HttpRequest.h"
#include "platform/Procedure.h"
#include "platform/Registry.h"
#include "platform/SystemLibrary.h"
#include "platform/XmlDocument.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace diagnose
{
namespace
{

using corvane::Registry::Hive;
using corvane::Registry::Place;
using corvane::Registry::ReadNumber;
using corvane::Registry::ReadText;
using corvane::Registry::View;

struct Corner
{
    const wchar_t* name;
    int bits;
    Place place;
};

// The user's before the machine's, as Windows looks them up.
constexpr Corner kCorners[] = {
    {L"user, 64-bit", 64, {Hive::User, View::Bits64}},
    {L"user, 32-bit", 32, {Hive::User, View::Bits32}},
    {L"machine, 64-bit", 64, {Hive::Machine, View::Bits64}},
    {L"machine, 32-bit", 32, {Hive::Machine, View::Bits32}},
};

// The class behind the programmatic id, which both bitnesses share: the user's, else the machine's.
std::optional<std::wstring> ClassId()
{
    const std::wstring key = std::wstring{L"Software\\Classes\\"} + kProgId + L"\\CLSID";
    for (const Corner& corner : kCorners)
        if (auto id = ReadText(key, L"", corner.place)) return id;
    return std::nullopt;
}

Registration Describe(const Corner& corner, const std::wstring& library)
{
    return {.where = corner.name,
            .bits = corner.bits,
            .isUsers = corner.place.hive == Hive::User,
            .library = library,
            .libraryExists = corvane::FileExists(library),
            .libraryBits = BitsOf(library),
            .libraryVersion = VersionOf(library)};
}

bool Fits(const Registration& entry) { return entry.bits == entry.libraryBits; }

// Where Windows keeps the views of a key together, both show one library: what does not fit goes when the same library
// stands in the view that fits, or was found before.
std::vector<Registration> WithoutRepeated(const std::vector<Registration>& found)
{
    std::vector<Registration> kept;
    for (const Registration& entry : found) {
        const bool repeated = std::ranges::any_of(found, [&](const Registration& other) {
            return other.library == entry.library && (Fits(other) || &other < &entry);
        });
        if (Fits(entry) || !repeated) kept.push_back(entry);
    }
    return kept;
}

} // namespace

std::vector<Registration> FindRegistrations()
{
    std::vector<Registration> found;
    const auto classId = ClassId();
    if (!classId) return found;
    const std::wstring key = L"Software\\Classes\\CLSID\\" + *classId + L"\\InprocServer32";
    for (const Corner& corner : kCorners) {
        const auto library = ReadText(key, L"", corner.place);
        if (library) found.push_back(Describe(corner, *library));
    }
    return WithoutRepeated(found);
}

std::vector<AddInEntry> FindAddIns()
{
    std::vector<AddInEntry> found;
    if (const auto value = ReadNumber(kAddInKey, kLoadBehavior)) found.push_back({L"user", 0, true, *value});
    for (const Corner& corner : kCorners) {
        if (corner.place.hive == Hive::User) continue;
        if (const auto value = ReadNumber(kAddInKey, kLoadBehavior, corner.place))
            found.push_back({corner.name, corner.bits, false, *value});
    }
    return found;
}

int BitsOf(const std::wstring& file)
{
    std::array<std::byte, 4096> head{};
    return ProgramBits(std::span{head}.first(corvane::ReadFile(file, head)));
}

std::wstring VersionOf(const std::wstring& file)
{
    constexpr const wchar_t* kLibrary = L"version.dll";
    const decltype(&::GetFileVersionInfoSizeW) size = corvane::SystemFunction{kLibrary, "GetFileVersionInfoSizeW"};
    const decltype(&::GetFileVersionInfoW) read = corvane::SystemFunction{kLibrary, "GetFileVersionInfoW"};
    const decltype(&::VerQueryValueW) query = corvane::SystemFunction{kLibrary, "VerQueryValueW"};
    std::vector<std::byte> data(size(file.c_str(), nullptr));
    void* found = nullptr;
    UINT length = 0;
    VS_FIXEDFILEINFO info{};
    if (data.empty() || !read(file.c_str(), 0, static_cast<DWORD>(data.size()), data.data()) ||
        !query(data.data(), L"\\", &found, &length) || length < sizeof info)
        return {};
    std::memcpy(&info, found, sizeof info);
    return std::to_wstring(HIWORD(info.dwFileVersionMS)) + L"." + std::to_wstring(LOWORD(info.dwFileVersionMS)) + L"." +
           std::to_wstring(HIWORD(info.dwFileVersionLS));
}

std::vector<std::wstring> MissingComponents()
{
    std::vector<std::wstring> missing;
    if (const auto error = corvane::Catch([] { const corvane::XmlDocument document; }))
        missing.push_back(L"MSXML, DOMDocument 4.0, 6.0 or 3.0 (" + error->Description() + L")");
    if (const auto error = corvane::Catch([] { const corvane::HttpRequest request; }))
        missing.push_back(L"MSXML, XMLHTTP 3.0 or 6.0 (" + error->Description() + L")");
    return missing;
}

std::vector<std::wstring> ParserVersions()
{
    std::vector<std::wstring> versions;
    for (const wchar_t* version : {L"3.0", L"4.0", L"6.0"}) {
        CLSID id{};
        corvane::ComPtr<IUnknown> parser;
        if (SUCCEEDED(::CLSIDFromProgID((std::wstring{L"Msxml2.DOMDocument."} + version).c_str(), &id)) &&
            SUCCEEDED(::CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(parser.GetAddressOf()))))
            versions.emplace_back(version);
    }
    return versions;
}

} // namespace diagnose
