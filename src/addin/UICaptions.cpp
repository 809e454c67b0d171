#include "addin/UICaptions.h"

#include "support/Conversions.h"

#include <array>

namespace corvane
{
namespace
{

// A piece of a caption and the terms replaced in it, one after the other. Rows of one member join.
struct CaptionRow
{
    std::wstring UICaptions::*member;
    const wchar_t* text;
    std::array<const wchar_t*, 3> terms;
};

// The label for Backstage keeps the word "Activity" whatever the customer calls it.
constexpr CaptionRow kRows[] = {
    {&UICaptions::saveToCorvane, L"Save to Corvane", {L"Corvane"}},
    {&UICaptions::saveToCorvaneTip, L"Save your document back to Corvane.", {L"Corvane"}},
    {&UICaptions::saveAsDelivActMenu, L"Save as Deliverable ", {L"Deliverable"}},
    {&UICaptions::saveAsDelivActMenu, L"or Activity...", {L"Activity"}},
    {&UICaptions::saveAsDelivActLabel, L"Save as a Deliverable or Activity", {L"Deliverable"}},
    {&UICaptions::saveAsGateDocMenu, L"Save as Gate Document...", {L"Gate Document"}},
    {&UICaptions::saveAsGateDocLabel, L"Save as Gate Document", {L"Gate Document"}},
    {&UICaptions::saveToCorvaneTitle, L"Save your document back to Corvane.", {L"Corvane"}},
    {&UICaptions::delivActTip,
     L"Save to Corvane as a Deliverable or Activity.",
     {L"Corvane", L"Deliverable", L"Activity"}},
    {&UICaptions::gateDocTip, L"Save to Corvane as a Gate Document.", {L"Gate Document", L"Corvane"}},
    {&UICaptions::relatedTip, L"Save to Corvane as a related document.", {L"Corvane"}},
    {&UICaptions::productName, L"Corvane", {L"Corvane"}},
    {&UICaptions::helpMenu, L"Corvane Help", {L"Corvane"}},
    {&UICaptions::helpLabel, L"Help", {L"Corvane"}},
    {&UICaptions::helpTip, L"Get help for Corvane add-ins.", {L"Corvane"}},
    {&UICaptions::helpTopicsLabel, L"Corvane for MS Office Help", {L"Corvane"}},
    {&UICaptions::helpTopicsTip, L"Get help for Corvane for MS Office.", {L"Corvane"}},
    {&UICaptions::aboutLabel, L"About Corvane for MS Office", {L"Corvane"}},
    {&UICaptions::aboutTip, L"Get version information about the Corvane for MS Office add-in.", {L"Corvane"}},
};

} // namespace

UICaptions BuildUICaptions(const std::function<std::wstring(std::wstring_view)>& name)
{
    UICaptions captions;
    for (const CaptionRow& row : kRows) {
        std::wstring text = row.text;
        for (const wchar_t* term : row.terms) {
            if (term != nullptr) text = ReplaceAll(text, term, name(term));
        }
        captions.*row.member += text;
    }
    return captions;
}

std::wstring ApplicationTitleFor(std::wstring_view productName)
{
    return ReplaceAll(L"Corvane for MS Office", L"Corvane", productName);
}

} // namespace corvane
