#include "shared/DocumentNames.h"

#include <gtest/gtest.h>
#include <tuple>

namespace corvane
{

TEST(DocumentNames, FindTheExtensionInTheLastPartOfAPath)
{
    constexpr std::pair<const wchar_t*, const wchar_t*> kCases[] = {
        {L"C:\\decks\\plan.pptx", L".pptx"},     {L"plan.v2.PPT", L".PPT"}, {L"C:\\decks.old\\plan", L""},
        {L"https://host/a.b/plan", L""},         {L"plan.", L""},           {L"", L""},
        {L"https://host/a/plan.pptm", L".pptm"}, {L".pptx", L".pptx"},
    };
    for (const auto& [given, expected] : kCases)
        EXPECT_EQ(ExtensionOf(given), expected) << testing::PrintToString(given);
}

TEST(DocumentNames, GiveATitleADefaultExtensionOnlyWhereItHasNone)
{
    EXPECT_EQ(TitleWithExtension(L"Presentation1", L".pptx"), L"Presentation1.pptx");
    EXPECT_EQ(TitleWithExtension(L"plan.ppt", L".pptx"), L"plan.ppt");
}

TEST(DocumentNames, PutTheSavedExtensionBehindATitleThatDoesNotHoldIt)
{
    constexpr std::tuple<const char*, const wchar_t*, const wchar_t*, const wchar_t*> kCases[] = {
        {"InAnotherLetterCase", L"Plan.PPTX", L"C:\\d\\plan.pptx", L"Plan.PPTX"},
        {"InTheMiddle", L"plan.pptx (copy)", L"C:\\d\\x.pptx", L"plan.pptx (copy)"},
        {"AsTheStartOfALongerOne", L"plan.pptx", L"C:\\d\\plan.ppt", L"plan.pptx"},
        {"WithAnother", L"plan.ppt", L"C:\\d\\plan.pptx", L"plan.ppt.pptx"},
    };
    for (const auto& [name, title, path, expected] : kCases)
        EXPECT_EQ(UploadNameOf(title, path), expected) << name;
}

TEST(DocumentNames, ReplaceWhatAFileNameCannotHold)
{
    EXPECT_EQ(AsFileName(L"Q1/Q2: \"plan\"?\t<a>|*\\"), L"Q1_Q2_ _plan____a____");
    EXPECT_EQ(AsFileName(L"r\xE9sum\xE9 \x20AC.pptx"), L"r\xE9sum\xE9 \x20AC.pptx");
    EXPECT_EQ(AsFileName(L"  plan v1.2 . "), L"plan v1.2");
    EXPECT_EQ(AsFileName(L" \t "), L"_");
    EXPECT_EQ(AsFileName(std::wstring(500, L'x')), std::wstring(120, L'x'));
    for (const wchar_t* device : {L"con", L"NUL.old", L"Com1", L"lpt\xB9", L"AUX .x", L"conout$"})
        EXPECT_EQ(AsFileName(device), L"_" + std::wstring{device});
    for (const wchar_t* plain : {L"console", L"com10", L"lptx", L"my con"})
        EXPECT_EQ(AsFileName(plain), plain);
}

TEST(DocumentNames, TellAnAddressOfTheWebFromAPath)
{
    EXPECT_EQ(PlanDiskSave({L"", L"HTTP://HOST/plan.pptx", false}), DiskSave::TemporaryCopy);
    EXPECT_EQ(PlanDiskSave({L"C:\\d", L"C:\\d\\https.pptx", false}), DiskSave::InPlace);
}

} // namespace corvane
