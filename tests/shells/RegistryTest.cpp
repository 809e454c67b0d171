// What the add-in reads and keeps in the registry: the administrators' policy and the customer's words.
#include "OfferedClass.h"

#include "support/CCustomNames.h"
#include "support/Policy.h"
#include "support/Settings.h"

#include <gtest/gtest.h>

using namespace corvane;

namespace
{

constexpr wchar_t kPolicies[] = L"Software\\Policies\\Halvex\\Corvane";
constexpr wchar_t kCache[] = L"Software\\Halvex\\Corvane\\CustomNames";

void SetText(HKEY hive, const std::wstring& key, const wchar_t* name, const std::wstring& text, DWORD type = REG_SZ)
{
    ::RegSetKeyValueW(hive, key.c_str(), name, type, text.c_str(),
                      static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t)));
}

class PolicyTest : public testing::Test
{
protected:
    PolicyTest() { Clear(); }
    ~PolicyTest() override { Clear(); }

    static void SetNumber(HKEY hive, const wchar_t* name, DWORD number)
    {
        ::RegSetKeyValueW(hive, kPolicies, name, REG_DWORD, &number, sizeof number);
    }
    static void SetServer(HKEY hive, const wchar_t* name, const wchar_t* text)
    {
        SetText(hive, std::wstring{kPolicies} + L"\\Servers", name, text);
    }

private:
    static void Clear()
    {
        for (const HKEY hive : {HKEY_CURRENT_USER, HKEY_LOCAL_MACHINE})
            ::RegDeleteTreeW(hive, kPolicies);
    }
};

TEST_F(PolicyTest, OfTheMachineComesBeforeTheUsersNumberByNumber)
{
    SetNumber(HKEY_CURRENT_USER, L"EnableTraceLogs", 1);
    SetNumber(HKEY_CURRENT_USER, L"RequestTimeoutSeconds", 20);
    const Apartment apartment;
    EXPECT_TRUE(Settings::Read().traceEnabled);
    SetNumber(HKEY_LOCAL_MACHINE, L"EnableTraceLogs", 0);
    EXPECT_FALSE(Settings::Read().traceEnabled);
    EXPECT_EQ(Settings::Read().requestTimeout, std::chrono::seconds{20});
}

TEST_F(PolicyTest, ListOfTheMachineStandsInPlaceOfTheUsers)
{
    using Texts = std::vector<std::wstring>;
    EXPECT_EQ(Policy::List(L"Server"), Texts{});
    SetServer(HKEY_CURRENT_USER, L"Server1", L"http://user");
    SetServer(HKEY_CURRENT_USER, L"Server2", L"http://other");
    SetServer(HKEY_CURRENT_USER, L"Server4", L"http://behind a gap");
    EXPECT_EQ(Policy::List(L"Server"), (Texts{L"http://user", L"http://other"}));
    SetServer(HKEY_LOCAL_MACHINE, L"Server1", L"http://machine");
    EXPECT_EQ(Policy::List(L"Server"), Texts{L"http://machine"});
}

class KeptNames : public testing::Test
{
protected:
    KeptNames() { ::RegDeleteTreeW(HKEY_CURRENT_USER, kCache); }
    ~KeptNames() override { ::RegDeleteTreeW(HKEY_CURRENT_USER, kCache); }

    // A cached word, behind the type of its value.
    static std::wstring Kept(const std::wstring& name)
    {
        wchar_t text[64] = L"";
        DWORD size = sizeof text;
        DWORD type = REG_NONE;
        ::RegGetValueW(HKEY_CURRENT_USER, kCache, name.c_str(), RRF_RT_ANY | RRF_NOEXPAND, &type, text, &size);
        return std::to_wstring(type) + L" " + text;
    }
};

TEST_F(KeptNames, AreAllWrittenByARefreshUnlessTheyAreThereAlready)
{
    // The type tells a value that was there before from one that was written again.
    SetText(HKEY_CURRENT_USER, kCache, L"Stage", L"My Stage", REG_EXPAND_SZ);
    SetText(HKEY_CURRENT_USER, kCache, L"Gate", L"my Gate", REG_EXPAND_SZ);
    CCustomNames names{[](const std::wstring& server, const std::wstring& page) {
        EXPECT_EQ(server + page, L"http://hpage");
        std::vector<CustomNameRow> rows{{L"Extra", L"My Extra"}};
        for (const auto& [key, cachedAs] : kCustomNameKeys)
            rows.push_back({key, std::wstring{L"My "} + key});
        return rows;
    }};
    EXPECT_FALSE(names.IsRefreshed());
    names.RefreshOnce(L"http://h", L"page");
    EXPECT_TRUE(names.IsRefreshed());
    for (const std::wstring name : {L"Extra", L"Gate"})
        EXPECT_EQ(Kept(name), L"1 My " + name);
    for (const auto& [key, cachedAs] : kCustomNameKeys) {
        const std::wstring name = key;
        EXPECT_EQ(Kept(name), (name == L"Stage" ? L"2 My " : L"1 My ") + name);
        EXPECT_EQ(names.GetCustomName(name), L"My " + name);
    }
}

TEST_F(KeptNames, AreReadAtTheStartEvenWhereEmpty)
{
    const CCustomNames defaults{nullptr};
    for (const auto& [key, cachedAs] : kCustomNameKeys)
        EXPECT_EQ(defaults.GetCustomName(key), key);
    for (const auto& [key, cachedAs] : kCustomNameKeys)
        SetText(HKEY_CURRENT_USER, kCache, cachedAs, std::wstring{L"My "} + key);
    SetText(HKEY_CURRENT_USER, kCache, L"In Trouble", L"");
    ::RegDeleteKeyValueW(HKEY_CURRENT_USER, kCache, L"Stage");
    const CCustomNames names{nullptr};
    for (const std::wstring key : {L"Corvane", L"Gate Document", L"Gate Documents", L"Routed For Approval"})
        EXPECT_EQ(names.GetCustomName(key), L"My " + key);
    EXPECT_EQ(names.GetCustomName(L"In Trouble"), L"");
    EXPECT_EQ(names.GetCustomName(L"Stage"), L"Stage");
}

} // namespace
