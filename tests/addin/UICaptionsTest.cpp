#include "addin/UICaptions.h"

#include <gtest/gtest.h>
#include <map>

namespace corvane
{
namespace
{

// Captions where the given terms are renamed and every other keeps its name.
UICaptions CaptionsWith(const std::map<std::wstring_view, std::wstring>& names)
{
    return BuildUICaptions([&names](std::wstring_view term) {
        const auto entry = names.find(term);
        return entry != names.end() ? entry->second : std::wstring{term};
    });
}

} // namespace

TEST(UICaptions, ReplaceTheirTermsOneAfterTheOther)
{
    const UICaptions captions = CaptionsWith({{L"Corvane", L"Deliverable Hub"},
                                              {L"Deliverable", L"Activity Item"},
                                              {L"Activity", L"Task"},
                                              {L"Gate Document", L"Corvane Paper"}});
    EXPECT_EQ(captions.saveToCorvaneTitle, L"Save your document back to Deliverable Hub.");
    EXPECT_EQ(captions.saveAsGateDocMenu, L"Save as Corvane Paper...");
    EXPECT_EQ(captions.relatedTip, L"Save to Deliverable Hub as a related document.");
    EXPECT_EQ(captions.helpTip, L"Get help for Deliverable Hub add-ins.");
    EXPECT_EQ(captions.delivActTip, L"Save to Task Item Hub as a Task Item or Task.");
    EXPECT_EQ(captions.gateDocTip, L"Save to Deliverable Hub as a Deliverable Hub Paper.");
    EXPECT_EQ(captions.saveAsDelivActMenu, L"Save as Activity Item or Task...") << "its pieces are replaced apart";
}

} // namespace corvane
