#include "addin/UICaptions.h"

#include <gtest/gtest.h>
#include <map>

namespace corvane
{
namespace
{

struct CaptionCase
{
    std::wstring UICaptions::*caption;
    const wchar_t* plain;
    const wchar_t* renamed;
};

constexpr CaptionCase kCases[] = {
    {&UICaptions::saveToCorvane, L"Save to Corvane", L"Save to R&D Hub"},
    {&UICaptions::saveToCorvaneTip, L"Save your document back to Corvane.", L"Save your document back to R&D Hub."},
    {&UICaptions::saveAsDelivActMenu, L"Save as Deliverable or Activity...", L"Save as Work Item or Task..."},
    {&UICaptions::saveAsDelivActLabel, L"Save as a Deliverable or Activity", L"Save as a Work Item or Activity"},
    {&UICaptions::saveAsGateDocMenu, L"Save as Gate Document...", L"Save as Door Paper..."},
    {&UICaptions::saveAsGateDocLabel, L"Save as Gate Document", L"Save as Door Paper"},
    {&UICaptions::saveToCorvaneTitle, L"Save your document back to Corvane.", L"Save your document back to R&D Hub."},
    {&UICaptions::delivActTip, L"Save to Corvane as a Deliverable or Activity.",
     L"Save to R&D Hub as a Work Item or Task."},
    {&UICaptions::gateDocTip, L"Save to Corvane as a Gate Document.", L"Save to R&D Hub as a Door Paper."},
    {&UICaptions::relatedTip, L"Save to Corvane as a related document.", L"Save to R&D Hub as a related document."},
    {&UICaptions::productName, L"Corvane", L"R&D Hub"},
    {&UICaptions::helpMenu, L"Corvane Help", L"R&D Hub Help"},
    {&UICaptions::helpLabel, L"Help", L"Help"},
    {&UICaptions::helpTip, L"Get help for Corvane add-ins.", L"Get help for R&D Hub add-ins."},
    {&UICaptions::helpTopicsLabel, L"Corvane for MS Office Help", L"R&D Hub for MS Office Help"},
    {&UICaptions::helpTopicsTip, L"Get help for Corvane for MS Office.", L"Get help for R&D Hub for MS Office."},
    {&UICaptions::aboutLabel, L"About Corvane for MS Office", L"About R&D Hub for MS Office"},
    {&UICaptions::aboutTip, L"Get version information about the Corvane for MS Office add-in.",
     L"Get version information about the R&D Hub for MS Office add-in."},
};
static_assert(std::size(kCases) == 18);

// Captions where the given terms are renamed and every other keeps its name.
UICaptions CaptionsWith(const std::map<std::wstring_view, std::wstring>& names)
{
    return BuildUICaptions([&names](std::wstring_view term) {
        const auto entry = names.find(term);
        return entry != names.end() ? entry->second : std::wstring{term};
    });
}

} // namespace

TEST(UICaptions, SpeakTheCustomersWords)
{
    const UICaptions plain = CaptionsWith({});
    const UICaptions renamed = CaptionsWith({{L"Corvane", L"R&D Hub"},
                                             {L"Deliverable", L"Work Item"},
                                             {L"Activity", L"Task"},
                                             {L"Gate Document", L"Door Paper"}});
    for (const auto& item : kCases) {
        EXPECT_EQ(plain.*item.caption, item.plain);
        EXPECT_EQ(renamed.*item.caption, item.renamed);
    }
}

TEST(UICaptions, ReplaceTheirTermsOneAfterTheOther)
{
    const UICaptions captions = CaptionsWith({{L"Corvane", L"Deliverable Hub"},
                                              {L"Deliverable", L"Activity Item"},
                                              {L"Activity", L"Task"},
                                              {L"Gate Document", L"Corvane Paper"}});
    EXPECT_EQ(captions.delivActTip, L"Save to Task Item Hub as a Task Item or Task.");
    EXPECT_EQ(captions.gateDocTip, L"Save to Deliverable Hub as a Deliverable Hub Paper.");
    EXPECT_EQ(captions.saveAsDelivActMenu, L"Save as Activity Item or Task...") << "its pieces are replaced apart";
}

TEST(UICaptions, NameTheApplicationAfterTheProduct)
{
    EXPECT_EQ(ApplicationTitleFor(L"Corvane"), L"Corvane for MS Office");
    EXPECT_EQ(ApplicationTitleFor(L"R&D Hub"), L"R&D Hub for MS Office");
}

} // namespace corvane
