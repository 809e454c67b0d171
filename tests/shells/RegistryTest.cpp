// What the add-in reads and keeps in the registry: the administrators' policy and the customer's words.
#include "OfferedClass.h"

#include "platform/Registry.h"
#include "support/CCustomNames.h"
#include "support/Policy.h"
#include "support/Settings.h"

#include <gtest/gtest.h>

using namespace corvane;
using Registry::Hive;

namespace
{

constexpr wchar_t kPolicies[] = L"Software\\Policies\\Halvex\\Corvane";
constexpr wchar_t kCache[] = L"Software\\Halvex\\Corvane\\CustomNames";

void SetText(const std::wstring& name, const std::wstring& text, DWORD type = REG_SZ)
{
    ::RegSetKeyValueW(HKEY_CURRENT_USER, kCache, name.c_str(), type, text.c_str(),
                      static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t)));
}

class PolicyTest : public testing::Test
{
protected:
    PolicyTest() { Clear(); }
    ~PolicyTest() override { Clear(); }

    static void SetServer(Hive hive, const std::wstring& name, const wchar_t* text)
    {
        Registry::WriteText(std::wstring{kPolicies} + L"\\Servers", name, text, hive);
    }

private:
    static void Clear()
    {
        for (const Hive hive : {Hive::User, Hive::Machine})
            Registry::DeleteTree(kPolicies, hive);
    }
};

TEST_F(PolicyTest, OfTheMachineComesBeforeTheUsersNumberByNumber)
{
    Registry::WriteNumber(kPolicies, L"EnableTraceLogs", 1);
    Registry::WriteNumber(kPolicies, L"RequestTimeoutSeconds", 20);
    const Apartment apartment;
    EXPECT_TRUE(Settings::Read().traceEnabled);
    constexpr DWORD kOff = 0;
    ::RegSetKeyValueW(HKEY_LOCAL_MACHINE, kPolicies, L"EnableTraceLogs", REG_DWORD, &kOff, sizeof kOff);
    EXPECT_FALSE(Settings::Read().traceEnabled);
    EXPECT_EQ(Settings::Read().requestTimeout, std::chrono::seconds{20});
}

TEST_F(PolicyTest, ListOfTheMachineStandsInPlaceOfTheUsers)
{
    using Texts = std::vector<std::wstring>;
    EXPECT_EQ(Policy::List(L"Server"), Texts{});
    SetServer(Hive::User, L"Server1", L"http://user");
    SetServer(Hive::User, L"Server2", L"http://other");
    SetServer(Hive::User, L"Server4", L"http://behind a gap");
    EXPECT_EQ(Policy::List(L"Server"), (Texts{L"http://user", L"http://other"}));
    SetServer(Hive::Machine, L"Server1", L"http://machine");
    EXPECT_EQ(Policy::List(L"Server"), Texts{L"http://machine"});
}

class KeptNames : public testing::Test
{
protected:
    KeptNames() { Registry::DeleteTree(kCache); }
    ~KeptNames() override { Registry::DeleteTree(kCache); }

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
    SetText(L"Stage", L"My Stage", REG_EXPAND_SZ);
    SetText(L"Gate", L"my Gate", REG_EXPAND_SZ);
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
        SetText(cachedAs, std::wstring{L"My "} + key);
    SetText(L"In Trouble", L"");
    ::RegDeleteKeyValueW(HKEY_CURRENT_USER, kCache, L"Stage");
    const CCustomNames names{nullptr};
    for (const std::wstring key : {L"Corvane", L"Gate Document", L"Gate Documents", L"Routed For Approval"})
        EXPECT_EQ(names.GetCustomName(key), L"My " + key);
    EXPECT_EQ(names.GetCustomName(L"In Trouble"), L"");
    EXPECT_EQ(names.GetCustomName(L"Stage"), L"Stage");
}

} // namespace
