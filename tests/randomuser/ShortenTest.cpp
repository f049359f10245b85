#include "randomuser/Shorten.h"

#include <gtest/gtest.h>

namespace {

Actions ManyActions(int count) {
    Actions actions = {{Kind::start}};
    for (int step = 1; step <= count; ++step) actions.push_back({Kind::barClick, 0, step});
    return actions;
}

bool Contains(const Actions& actions, int step) {
    return std::ranges::find(actions, Action{Kind::barClick, 0, step}) != actions.end();
}

bool Always() { return true; }

}  // namespace

TEST(Shortened, LeavesOnlyWhatTheFaultNeeds) {
    const auto fails = [](const Actions& actions) { return Contains(actions, 17) && Contains(actions, 60); };
    const Actions expected = {{Kind::start}, {Kind::barClick, 0, 17}, {Kind::barClick, 0, 60}};
    EXPECT_EQ(Shortened(ManyActions(100), fails, Always), expected);
}

TEST(Shortened, KeepsTheStartOfTheProgram) {
    const auto fails = [](const Actions&) { return true; };
    EXPECT_EQ(Shortened(ManyActions(33), fails, Always), Actions{{Kind::start}});
}

TEST(Shortened, StopsWhenThereIsNoMoreTime) {
    int tries = 0;
    const auto fails = [&](const Actions&) {
        ++tries;
        return false;
    };
    EXPECT_EQ(Shortened(ManyActions(100), fails, [&] { return tries < 3; }), ManyActions(100));
    EXPECT_EQ(tries, 3);
}

TEST(ShortEnds, AreTheFirstOfTwiceTheLengthThatFail) {
    const auto fails = [](const Actions& actions) { return Contains(actions, 88); };
    const auto end = ShortEnd(ManyActions(100), fails, Always);
    ASSERT_TRUE(end);
    EXPECT_EQ(end->size(), 1U + 16U);
    EXPECT_EQ(end->front(), Action{Kind::start});
    EXPECT_EQ(end->back(), (Action{Kind::barClick, 0, 100}));
}

TEST(ShortEnds, AreTheWholeWhenTheFaultBeginsAtTheStart) {
    const auto fails = [](const Actions& actions) { return Contains(actions, 1); };
    EXPECT_EQ(ShortEnd(ManyActions(100), fails, Always), ManyActions(100));
}

TEST(ShortEnds, AreNothingWhenTheFaultDoesNotComeAgain) {
    const auto fails = [](const Actions&) { return false; };
    EXPECT_FALSE(ShortEnd(ManyActions(100), fails, Always));
}
