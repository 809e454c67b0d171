#include "AddInLibrary.h"

#include "platform/Registry.h"

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
        return corvane::Registry::ReadText(key, name).value_or(L"(missing)");
    }
    // The values left anywhere below a key.
    static std::size_t ValuesBelow(const std::wstring& key)
    {
        std::size_t values = corvane::Registry::ValueNames(key).size();
        for (const std::wstring& name : corvane::Registry::KeyNames(key))
            values += ValuesBelow(key + L"\\" + name);
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
    EXPECT_EQ(corvane::Registry::ReadNumber(kAddInKey, L"LoadBehavior"), 3);

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
