#include "shared/HostTraits.h"

#include <gtest/gtest.h>

namespace corvane
{

struct TypeCase
{
    const wchar_t* host;
    int version;
    const wchar_t* extension;
    std::optional<std::int32_t> type;
};

TEST(HostTraits, NumberTheFormatOfAnExtensionByHostAndVersion)
{
    constexpr TypeCase kCases[] = {
        {L"Microsoft Word", 11, L".doc", 0},        {L"Microsoft Word", 16, L".DOCM", 13},
        {L"Microsoft Word", 11, L".docx", {}},      {L"Microsoft Excel", 11, L".xls", -4143},
        {L"Microsoft Excel", 12, L".xls", 56},      {L"Microsoft Excel", 16, L".xlsb", 50},
        {L"Microsoft PowerPoint", 11, L".ppt", 1},  {L"Microsoft PowerPoint", 14, L".ppsx", 28},
        {L"Microsoft PowerPoint", 16, L".key", {}}, {L"Outlook", 16, L".msg", 9},
    };
    for (const auto& item : kCases)
        EXPECT_EQ(SaveTypeFor(*FindHost(item.host), item.version, item.extension), item.type)
            << item.version << testing::PrintToString(std::wstring{item.extension});
    EXPECT_EQ(FindHost(L"Microsoft Publisher"), nullptr);
}

TEST(HostTraits, GiveATitleAnExtensionOfTheHost)
{
    const auto title = [](const wchar_t* host, int version, const wchar_t* name, bool saved, bool hasMacros = false) {
        return TitleOf(*FindHost(host), version, name, saved, hasMacros);
    };
    EXPECT_EQ(title(L"Microsoft PowerPoint", 16, L" Plan.PPTM", false), L"Plan.PPTM");
    EXPECT_EQ(title(L"Microsoft PowerPoint", 16, L" plan ", true), L" plan .pptx");
    EXPECT_EQ(title(L"Microsoft PowerPoint", 16, L"Plan v1.2", true), L"Plan v1.2");
    EXPECT_EQ(title(L"Microsoft PowerPoint", 16, L"Plan v1.2", false, true), L"Plan v1.2.pptm");
    EXPECT_EQ(title(L"Microsoft PowerPoint", 11, L"Plan", false, true), L"Plan.ppt");
    EXPECT_EQ(title(L"Microsoft Word", 12, L"con", false), L"_con.docx");
    EXPECT_EQ(title(L"Microsoft Excel", 11, L"Book1", false), L"Book1.xls");
}

} // namespace corvane
