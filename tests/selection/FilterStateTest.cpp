#include "selection/FilterState.h"

#include <gtest/gtest.h>

namespace corvane
{

struct OutcomeCase
{
    const char* name;
    AppliedFilter filter;
    AppliedFilter lastApplied;
    bool canceled;
    bool active;
    bool changed;
};

TEST(FilterState, IsActiveWhenItNarrowsAndChangedAgainstTheLastAppliedOne)
{
    const OutcomeCase kCases[] = {
        {"NothingChosen", {L"", 0, 0}, {}, false, false, false},
        {"TextChosen", {L"Apollo", 0, 0}, {}, false, true, true},
        {"BlankIsAText", {L" ", 0, 0}, {}, false, true, true},
        {"ClassChosen", {L"", 4, 2}, {}, false, true, true},
        {"SameAgain", {L"Apollo", 4, 2}, {L"Apollo", 4, 2}, false, true, false},
        {"SameClassElsewhereInTheList", {L"", 4, 3}, {L"", 4, 2}, false, true, false},
        {"OtherLetterCase", {L"apollo", 0, 0}, {L"Apollo", 0, 0}, false, true, true},
        {"Cleared", {L"", 0, 0}, {L"Apollo", 4, 2}, false, false, true},
        {"CancelledChangesNothing", {L"Apollo", 0, 0}, {}, true, true, false},
    };
    for (const OutcomeCase& item : kCases) {
        SCOPED_TRACE(item.name);
        const FilterOutcome outcome = OutcomeOf(item.filter, item.lastApplied, item.canceled);
        EXPECT_EQ(outcome.active, item.active);
        EXPECT_EQ(outcome.changed, item.changed);
        EXPECT_EQ(outcome.canceled, item.canceled);
    }
}

// What follows a forced filter is in the scenario too-many-projects.
TEST(FilterState, IsForcedByMoreThanFiveHundredProjects)
{
    EXPECT_FALSE(ForcesFilter(500));
    EXPECT_TRUE(ForcesFilter(501));
}

} // namespace corvane
