#include "shared/HostTraits.h"

#include <gtest/gtest.h>

namespace corvane
{

TEST(HostTraits, NumberTheFormatOfAnExtensionByHostAndVersion)
{
    const auto formats = [](const wchar_t* name, int version) {
        std::wstring told;
        for (const SaveFormat& format : FindHost(name)->formats) {
            if (version < format.firstVersion || format.lastVersion < version) continue;
            const auto type = SaveTypeFor(*FindHost(name), version, format.extension);
            told += std::wstring{format.extension} + L" " + std::to_wstring(type.value_or(0)) + L" ";
        }
        return told;
    };
    EXPECT_EQ(formats(L"Microsoft Word", 11), L".doc 0 .dot 1 .rtf 6 ");
    EXPECT_EQ(formats(L"Microsoft Word", 12), L".doc 0 .dot 1 .rtf 6 .docx 12 .docm 13 .dotx 14 .dotm 15 .odt 23 ");
    EXPECT_EQ(formats(L"Microsoft Excel", 11), L".xls -4143 .xlt 17 .csv 6 ");
    EXPECT_EQ(formats(L"Microsoft Excel", 12),
              L".xls 56 .xlt 17 .csv 6 .xlsb 50 .xlsx 51 .xlsm 52 .xltm 53 .xltx 54 .ods 60 ");
    EXPECT_EQ(formats(L"Microsoft PowerPoint", 11), L".ppt 1 .pot 5 .pps 7 .ppa 8 ");
    EXPECT_EQ(formats(L"Microsoft PowerPoint", 12),
              L".ppt 1 .pot 5 .pps 7 .ppa 8 .pptx 24 .pptm 25 .potx 26 .potm 27 .ppsx 28 .ppsm 29 .ppam 30 .odp 35 ");
    EXPECT_EQ(formats(L"Outlook", 16), L".msg 9 ");
    EXPECT_EQ(SaveTypeFor(*FindHost(L"Microsoft Word"), 16, L".DOCM"), 13);
    EXPECT_EQ(SaveTypeFor(*FindHost(L"Microsoft Word"), 11, L".docx"), std::nullopt);
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
    EXPECT_EQ(title(L"Microsoft Word", 12, L"Plan", false, true), L"Plan.docm");
    EXPECT_EQ(title(L"Microsoft Excel", 11, L"Book1", false), L"Book1.xls");
    EXPECT_EQ(title(L"Microsoft Excel", 12, L"Book1", false), L"Book1.xlsx");
    EXPECT_EQ(title(L"Microsoft Excel", 12, L"Book1", false, true), L"Book1.xlsm");
}

} // namespace corvane
