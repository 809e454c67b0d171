#include "forms/FormPlacement.h"

#include <gtest/gtest.h>

namespace corvane
{
namespace
{

constexpr Box kScreen{0, 0, 1000, 700};

TEST(FormPlacement, PutsAFormIntoTheMiddleButOntoTheScreen)
{
    struct
    {
        const char* name;
        Extent form;
        Box around;
        Box work;
        Box expected;
    } const kCases[] = {
        {"Middle", {200, 100}, {100, 100, 500, 400}, kScreen, {200, 200, 400, 300}},
        {"OwnerLeavesAtTheRightAndBelow", {200, 100}, {900, 650, 1300, 900}, kScreen, {800, 600, 1000, 700}},
        {"OwnerLeavesAtTheLeftAndAbove", {200, 100}, {-300, -200, 20, 40}, kScreen, {0, 0, 200, 100}},
        {"TaskBarAtTheTop", {200, 100}, {0, 0, 300, 60}, {0, 40, 1000, 700}, {50, 40, 250, 140}},
        {"MonitorLeftOfTheMainOne", {200, 100}, {-900, 0, -100, 600}, {-1000, 0, 0, 700}, {-600, 250, -400, 350}},
        {"HigherThanTheScreen", {200, 900}, {400, 0, 600, 700}, kScreen, {400, 0, 600, 700}},
        {"LargerBothWays", {1200, 900}, {400, 300, 600, 500}, kScreen, kScreen},
    };
    for (const auto& item : kCases) {
        SCOPED_TRACE(item.name);
        EXPECT_EQ(PlaceInMiddle(item.form, item.around, item.work), item.expected);
    }
}

TEST(FormPlacement, GivesAScrollBarTheRoomThatItTakesFromTheOtherOne)
{
    constexpr Extent kBar{17, 15};
    EXPECT_EQ(BarsFor({300, 200}, {300, 200}, kBar), (ScrollBars{false, false}));
    EXPECT_EQ(BarsFor({283, 250}, {300, 200}, kBar), (ScrollBars{false, true}));
    EXPECT_EQ(BarsFor({300, 250}, {300, 200}, kBar), (ScrollBars{true, true}));
    EXPECT_EQ(BarsFor({350, 185}, {300, 200}, kBar), (ScrollBars{true, false}));
    EXPECT_EQ(BarsFor({350, 190}, {300, 200}, kBar), (ScrollBars{true, true}));
}

TEST(FormPlacement, ScrollsAsLittleAsShowsAControl)
{
    EXPECT_EQ(PositionToShow(100, 200, 120, 150), 100); // in view
    EXPECT_EQ(PositionToShow(100, 200, 40, 70), 40);    // above
    EXPECT_EQ(PositionToShow(100, 200, 380, 410), 210); // below
    EXPECT_EQ(PositionToShow(0, 200, 150, 400), 150);   // longer than the view
}

} // namespace
} // namespace corvane
