#include "support/CustomNameTable.h"

#include <gtest/gtest.h>
#include <vector>

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

TEST(CustomNameTable, ReadsOnlyTheGateDocumentKeysFromTheCacheUnderAnotherName)
{
    std::vector<std::wstring> renamed;
    for (const auto& [key, cachedAs] : kCustomNameKeys) {
        if (std::wstring_view{key} != cachedAs) renamed.push_back(std::wstring{key} + L" as " + cachedAs);
    }
    EXPECT_EQ(renamed,
              (std::vector<std::wstring>{L"Gate Document as GateDocument", L"Gate Documents as GateDocuments"}));
    EXPECT_EQ(kCustomNameKeys.size(), 17U);
}

} // namespace corvane
