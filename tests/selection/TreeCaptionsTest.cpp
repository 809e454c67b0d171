#include "selection/TreeCaptions.h"

#include <gtest/gtest.h>

namespace corvane
{
namespace
{

std::wstring Renamed(std::wstring_view term)
{
    if (term == L"Corvane") return L"Orbit & Co";
    if (term == L"Deliverable") return L"Work & Item";
    if (term == L"Deliverables") return L"Work & Items";
    if (term == L"Activities") return L"Tasks";
    if (term == L"Activity") return L"Task";
    if (term == L"Gate Document") return L"Door & Paper";
    return term == L"Gate Documents" ? L"Door & Papers" : L"";
}

struct CaptionsCase
{
    TreeMode mode;
    TreeCaptions plain;
    TreeCaptions renamed;
};

// Only what may hold an access key has its ampersands doubled: the labels.
const CaptionsCase kCases[] = {
    {TreeMode::Assignment,
     {L"Save to Deliverable or Activity", L"My Deliverables and Activities", L"Corvane Server URL",
      L"There are no assignments.", L"You must select a Deliverable or Activity that you own.", true},
     {L"Save to Work & Item or Task", L"My Work && Items and Tasks", L"Orbit && Co Server URL",
      L"There are no assignments.", L"You must select a Work & Item or Task that you own.", true}},
    {TreeMode::RelatedDocument,
     {L"Save to Related Document", L"My Projects", L"Corvane Server URL", L"There are no projects.",
      L"You must select a new or existing related document entry from the list.", true},
     {L"Save to Related Document", L"My Projects", L"Orbit && Co Server URL", L"There are no projects.",
      L"You must select a new or existing related document entry from the list.", true}},
    {TreeMode::GateDocument,
     {L"Save to Gate Document", L"My Gate Documents", L"Corvane Server URL", L"There are no assignments.",
      L"You must select a Gate Document from the list.", false},
     {L"Save to Door & Paper", L"My Door && Papers", L"Orbit && Co Server URL", L"There are no assignments.",
      L"You must select a Door & Paper from the list.", false}},
};

void ExpectSame(const TreeCaptions& actual, const TreeCaptions& expected)
{
    EXPECT_EQ(actual.caption, expected.caption);
    EXPECT_EQ(actual.treeLabel, expected.treeLabel);
    EXPECT_EQ(actual.serverLabel, expected.serverLabel);
    EXPECT_EQ(actual.emptyText, expected.emptyText);
    EXPECT_EQ(actual.nothingSelected, expected.nothingSelected);
    EXPECT_EQ(actual.refusalIsCritical, expected.refusalIsCritical);
}

} // namespace

TEST(TreeCaptions, SpeakTheCustomersWordsInEveryMode)
{
    for (const auto& [mode, plain, renamed] : kCases) {
        SCOPED_TRACE(static_cast<int>(mode));
        ExpectSame(TreeCaptionsFor(mode, [](std::wstring_view term) { return std::wstring{term}; }), plain);
        ExpectSame(TreeCaptionsFor(mode, &Renamed), renamed);
    }
}

TEST(TreeCaptions, TellOfAnActiveFilterOnce)
{
    EXPECT_EQ(WithFilterMark(L"My Projects"), L"My Projects (Filter Active)");
    EXPECT_EQ(WithFilterMark(L"My Projects (Filter Active)"), L"My Projects (Filter Active)");
}

TEST(TreeCaptions, NameTheEntryLimit)
{
    EXPECT_EQ(EntryLimitMessage(), L"There are more than 500 entries in the selection tree.  Please use filtering to "
                                   L"reduce the number of entries to fewer than 500");
}

} // namespace corvane
