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

struct TitleCase
{
    const wchar_t* host;
    int version;
    const wchar_t* name;
    bool everSaved;
    const wchar_t* title;
};

TEST(HostTraits, GiveATitleAnExtensionOfTheHost)
{
    constexpr TitleCase kCases[] = {
        {L"Microsoft PowerPoint", 16, L"Presentation1", false, L"Presentation1.pptx"},
        {L"Microsoft PowerPoint", 11, L"Presentation1", false, L"Presentation1.ppt"},
        {L"Microsoft PowerPoint", 16, L"Plan v1.2", false, L"Plan v1.2.pptx"},
        {L"Microsoft PowerPoint", 16, L"Plan v1.2", true, L"Plan v1.2"},
        {L"Microsoft PowerPoint", 16, L" Plan.PPTM", false, L"Plan.PPTM"},
        {L"Microsoft PowerPoint", 16, L" plan ", true, L" plan .pptx"},
        {L"Microsoft Word", 12, L"con", false, L"_con.docx"},
        {L"Microsoft Excel", 11, L"Book1", false, L"Book1.xls"},
        {L"Outlook", 16, L"Re: costs 1/2", false, L"Re_ costs 1_2.msg"},
        {L"Outlook", 16, L"", false, L"_.msg"},
    };
    for (const auto& item : kCases)
        EXPECT_EQ(TitleOf(*FindHost(item.host), item.version, item.name, item.everSaved, false), item.title)
            << testing::PrintToString(std::wstring{item.name});
    EXPECT_EQ(TitleOf(*FindHost(L"Microsoft PowerPoint"), 16, L"Presentation1", false, true), L"Presentation1.pptm");
    EXPECT_EQ(TitleOf(*FindHost(L"Microsoft PowerPoint"), 11, L"Presentation1", false, true), L"Presentation1.ppt");
}

} // namespace corvane
