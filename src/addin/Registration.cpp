#include "addin/Registration.h"

#include "Version.h"
#include "addin/CController.h"
#include "addin/CRbnBtnInfo.h"
#include "addin/CSaveResult.h"
#include "addin/Connect.h"
#include "addin/TraceLogObject.h"
#include "platform/Procedure.h"
#include "platform/Registry.h"

#include <array>

namespace corvane
{
namespace
{

constexpr const wchar_t* kProject = L"CorvaneMSOfficePowerPoint.";
constexpr const wchar_t* kClasses = L"Software\\Classes\\";
constexpr const wchar_t* kAddIns = L"Software\\Microsoft\\Office\\PowerPoint\\Addins\\";
constexpr const wchar_t* kFriendlyName = L"Corvane for MS Office - PowerPoint";
constexpr const wchar_t* kDescription = L"Corvane Addin for MS Office Documents - PowerPoint";
constexpr const wchar_t* kPlatformKey = sizeof(void*) == 8 ? L"\\0\\win64" : L"\\0\\win32";
constexpr std::int32_t kLoadAtStartUp = 3;

const PublicClass kPublicClasses[] = {
    {L"Connect", CLSID_Connect, &CreateObject<Connect>},
    {L"CController", CLSID_CController, &CreateObject<CController>},
    {L"CTraceLog", CLSID_CTraceLog, &CreateObject<TraceLogObject>},
    {L"CRbnBtnInfo", CLSID_CRbnBtnInfo, &CreateObject<CRbnBtnInfo>},
    {L"CSaveResult", CLSID_CSaveResult, &CreateObject<CSaveResult>},
};

std::wstring ProgId(const PublicClass& entry) { return std::wstring{kProject} + entry.name; }
std::wstring ProgIdKey(const PublicClass& entry) { return kClasses + ProgId(entry); }
std::wstring ClassKey(const PublicClass& entry) { return std::wstring{kClasses} + L"CLSID\\" + GuidText(entry.id); }
std::wstring TypeLibraryKey()
{
    return std::wstring{kClasses} + L"TypeLib\\" + GuidText(LIBID_CorvaneMSOfficePowerPoint);
}
std::wstring TypeLibraryVersionKey()
{
    std::array<wchar_t, 16> version{};
    ::swprintf(version.data(), version.size(), L"\\%x.%x", kVersionMajor, kVersionMinor);
    return TypeLibraryKey() + version.data();
}
std::wstring AddInKey() { return kAddIns + ProgId(kPublicClasses[0]); }

void RegisterClass(const PublicClass& entry, const std::wstring& library)
{
    const std::wstring key = ClassKey(entry);
    Registry::WriteText(key, L"", ProgId(entry));
    Registry::WriteText(key + L"\\InprocServer32", L"", library);
    Registry::WriteText(key + L"\\InprocServer32", L"ThreadingModel", L"Apartment");
    Registry::WriteText(key + L"\\ProgID", L"", ProgId(entry));
    Registry::WriteText(key + L"\\TypeLib", L"", GuidText(LIBID_CorvaneMSOfficePowerPoint));
    Registry::WriteText(ProgIdKey(entry), L"", ProgId(entry));
    Registry::WriteText(ProgIdKey(entry) + L"\\CLSID", L"", GuidText(entry.id));
}

void RegisterTypeLibrary(const std::wstring& library)
{
    Registry::WriteText(TypeLibraryVersionKey(), L"", kFriendlyName);
    Registry::WriteText(TypeLibraryVersionKey() + kPlatformKey, L"", library);
}

// True while the library of the other bitness is registered: it has class keys of its own, but shares the rest.
bool OtherBitnessRegistered() noexcept
{
    constexpr Registry::View kOther = sizeof(void*) == 8 ? Registry::View::Bits32 : Registry::View::Bits64;
    // Where Windows has one bitness only, the other view shows the own keys, which are gone by now.
    return Registry::KeyExists(ClassKey(kPublicClasses[0]), {.view = kOther});
}

void UnregisterShared() noexcept
{
    Registry::DeleteTree(AddInKey());
    Registry::DeleteTree(TypeLibraryKey());
    for (const PublicClass& entry : kPublicClasses)
        Registry::DeleteTree(ProgIdKey(entry));
}

} // namespace

const PublicClass* FindClass(REFCLSID id) noexcept
{
    for (const PublicClass& entry : kPublicClasses) {
        if (entry.id == id) return &entry;
    }
    return nullptr;
}

void Register()
{
    const std::wstring library = Library::Path();
    for (const PublicClass& entry : kPublicClasses)
        RegisterClass(entry, library);
    RegisterTypeLibrary(library);
    Registry::WriteText(AddInKey(), L"FriendlyName", kFriendlyName);
    Registry::WriteText(AddInKey(), L"Description", kDescription);
    Registry::WriteNumber(AddInKey(), L"LoadBehavior", kLoadAtStartUp);
}

void Unregister() noexcept
{
    Ignoring([] {
        for (const PublicClass& entry : kPublicClasses)
            Registry::DeleteTree(ClassKey(entry));
        Registry::DeleteTree(TypeLibraryVersionKey() + kPlatformKey);
        if (!OtherBitnessRegistered()) UnregisterShared();
    });
}

} // namespace corvane
