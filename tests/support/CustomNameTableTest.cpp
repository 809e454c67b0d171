#include "support/CustomNameTable.h"

#include <gtest/gtest.h>

namespace corvane
{

TEST(CustomNameTable, ComparesKeysWithoutLetterCase)
{
    CustomNameTable table;
    table.Set(L"Deliverable", L"Deliverable");
    table.Set(L"DELIVERABLE", L"Work Item");
    EXPECT_EQ(table.Find(L"deliverable"), L"Work Item");
    EXPECT_EQ(table.Item(L"dElIvErAbLe"), L"Work Item");
    EXPECT_EQ(table.Size(), 1U);
}

TEST(CustomNameTable, AddsAnUnknownKeyWhenItsItemIsAskedForButNotWhenItIsSought)
{
    CustomNameTable table;
    EXPECT_EQ(table.Find(L"Stage"), L"");
    EXPECT_EQ(table.Size(), 0U);
    EXPECT_EQ(table.Item(L"Stage"), L"");
    EXPECT_EQ(table.Size(), 1U);
}

TEST(CustomNameTable, KeepsOnlySoMuchOfWhatAServerTells)
{
    const std::wstring longest(1024, L'v');
    std::vector<CustomNameRow> rows(302, {std::wstring(255, L'n'), longest});
    std::vector<CustomNameRow> expected(rows.begin(), rows.begin() + 300);
    expected[0].value = longest.substr(1) + L"…";
    rows[0].token += L"n";
    rows[1].value += L"v";
    EXPECT_EQ(KeptRows(rows), expected);
}

TEST(CustomNameTable, ReadsEveryTermFromTheCacheUnderItsOwnName)
{
    std::wstring terms;
    for (const auto& [key, cachedAs] : kCustomNameKeys)
        terms +=
            std::wstring{key} + (std::wstring_view{key} == cachedAs ? L"" : L" as " + std::wstring{cachedAs}) + L"\n";
    EXPECT_EQ(terms, L"Corvane\nDeliverable\nDeliverables\nActivity\nActivities\nStage\nGate\n"
                     L"Gate Document as GateDocument\nGate Documents as GateDocuments\n"
                     L"CorporateCurrencyCode\nCorporateCurrencyName\nCompleted\nIn Progress\nNot Started\n"
                     L"In Trouble\nNot Required\nRouted For Approval\n");
}

} // namespace corvane
