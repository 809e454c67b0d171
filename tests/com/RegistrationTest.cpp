#include "AddInLibrary.h"

namespace
{

constexpr const wchar_t* kTestKey = L"Software\\CorvaneTests\\Registration";
constexpr const wchar_t* kAddInKey =
    L"Software\\Microsoft\\Office\\PowerPoint\\Addins\\CorvaneMSOfficePowerPoint.Connect";

// Registers into a key of its own instead of the user's registry.
class Registration : public AddInLibrary
{
protected:
    void SetUp() override
    {
        AddInLibrary::SetUp();
        ::RegDeleteTreeW(HKEY_CURRENT_USER, kTestKey);
        ASSERT_EQ(::RegCreateKeyW(HKEY_CURRENT_USER, kTestKey, &m_key), ERROR_SUCCESS);
        ASSERT_EQ(::RegOverridePredefKey(HKEY_CURRENT_USER, m_key), ERROR_SUCCESS);
    }
    void TearDown() override
    {
        ::RegOverridePredefKey(HKEY_CURRENT_USER, nullptr);
        ::RegCloseKey(m_key);
        ::RegDeleteTreeW(HKEY_CURRENT_USER, kTestKey);
        AddInLibrary::TearDown();
    }

    static std::wstring TextAt(const std::wstring& key, const wchar_t* name)
    {
        std::wstring text(MAX_PATH, L'\0');
        auto size = static_cast<DWORD>(text.size() * sizeof(wchar_t));
        const LSTATUS status =
            ::RegGetValueW(HKEY_CURRENT_USER, key.c_str(), name, RRF_RT_REG_SZ, nullptr, text.data(), &size);
        return status == ERROR_SUCCESS ? text.c_str() : L"(missing)";
    }
    // The values left anywhere below a key.
    static DWORD ValuesBelow(const std::wstring& key)
    {
        HKEY opened = nullptr;
        if (::RegOpenKeyW(HKEY_CURRENT_USER, key.c_str(), &opened) != ERROR_SUCCESS) return 0;
        DWORD keys = 0;
        DWORD values = 0;
        ::RegQueryInfoKeyW(opened, nullptr, nullptr, nullptr, &keys, nullptr, nullptr, &values, nullptr, nullptr,
                           nullptr, nullptr);
        for (DWORD index = 0; index < keys; ++index) {
            wchar_t name[MAX_PATH] = L"";
            ::RegEnumKeyW(opened, index, name, MAX_PATH);
            values += ValuesBelow(key + L"\\" + name);
        }
        ::RegCloseKey(opened);
        return values;
    }

private:
    HKEY m_key = nullptr;
};

TEST_F(Registration, WritesTheHostsKeyForTheUserAndTakesEverythingBack)
{
    ASSERT_EQ(Run("DllRegisterServer"), S_OK);
    EXPECT_EQ(TextAt(kAddInKey, L"FriendlyName"), L"Corvane for MS Office - PowerPoint");
    EXPECT_EQ(TextAt(kAddInKey, L"Description"), L"Corvane Addin for MS Office Documents - PowerPoint");
    DWORD loadBehaviour = 0;
    DWORD size = sizeof loadBehaviour;
    ::RegGetValueW(HKEY_CURRENT_USER, kAddInKey, L"LoadBehavior", RRF_RT_REG_DWORD, nullptr, &loadBehaviour, &size);
    EXPECT_EQ(loadBehaviour, 3U);

    for (const wchar_t* name : {L"Connect", L"CController", L"CTraceLog", L"CRbnBtnInfo", L"CSaveResult"}) {
        const std::wstring classes = L"Software\\Classes\\";
        const std::wstring classId = TextAt(classes + L"CorvaneMSOfficePowerPoint." + name + L"\\CLSID", L"");
        const std::wstring server = classes + L"CLSID\\" + classId + L"\\InprocServer32";
        EXPECT_NE(TextAt(server, L"").find(L"CorvaneMSOfficePowerPoint.dll"), std::wstring::npos);
        EXPECT_EQ(TextAt(server, L"ThreadingModel"), L"Apartment");
    }

    ASSERT_EQ(Run("DllRegisterServer"), S_OK) << "registering again is no error";
    ASSERT_EQ(Run("DllUnregisterServer"), S_OK);
    EXPECT_EQ(ValuesBelow(L"Software"), 0U);
    EXPECT_EQ(Run("DllUnregisterServer"), S_OK) << "neither is taking back what is gone";
}

// The machine's registry stands in for the user's: of the two, Wine keeps the bitnesses apart only there.
TEST_F(Registration, LeavesWhatTheOtherBitnessShares)
{
    BOOL hasOther = sizeof(void*) == 8;
    if (!hasOther) ::IsWow64Process(::GetCurrentProcess(), &hasOther);
    if (!hasOther) GTEST_SKIP() << "this Windows has one bitness only";
    constexpr REGSAM kOther = sizeof(void*) == 8 ? KEY_WOW64_32KEY : KEY_WOW64_64KEY;
    const std::wstring progId = L"Software\\Classes\\CorvaneMSOfficePowerPoint.Connect\\CLSID";
    HKEY machine = nullptr;
    ASSERT_EQ(::RegCreateKeyExW(HKEY_LOCAL_MACHINE, L"", 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &machine, nullptr),
              ERROR_SUCCESS);
    ASSERT_EQ(::RegOverridePredefKey(HKEY_CURRENT_USER, machine), ERROR_SUCCESS);

    ASSERT_EQ(Run("DllRegisterServer"), S_OK);
    const std::wstring other = L"Software\\Classes\\CLSID\\" + TextAt(progId, L"");
    HKEY created = nullptr;
    ASSERT_EQ(::RegCreateKeyExW(HKEY_LOCAL_MACHINE, other.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS | kOther, nullptr,
                                &created, nullptr),
              ERROR_SUCCESS);
    EXPECT_EQ(Run("DllUnregisterServer"), S_OK);
    EXPECT_NE(TextAt(progId, L""), L"(missing)");
    EXPECT_NE(TextAt(kAddInKey, L"FriendlyName"), L"(missing)");
    EXPECT_EQ(TextAt(other, L""), L"(missing)");

    EXPECT_EQ(::RegDeleteKeyExW(HKEY_LOCAL_MACHINE, other.c_str(), kOther, 0), ERROR_SUCCESS);
    EXPECT_EQ(Run("DllUnregisterServer"), S_OK);
    EXPECT_EQ(TextAt(progId, L""), L"(missing)");
    EXPECT_EQ(TextAt(kAddInKey, L"FriendlyName"), L"(missing)");
    ::RegCloseKey(created);
    ::RegCloseKey(machine);
}

} // namespace
