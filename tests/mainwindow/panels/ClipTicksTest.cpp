#include "mainwindow/panels/ClipTicks.h"

#include <gtest/gtest.h>

TEST(ClipTicks, IsDueOnTheThirdTickOnly) {
    ClipTicks ticks;
    EXPECT_FALSE(ticks.count());
    EXPECT_FALSE(ticks.count());
    EXPECT_TRUE(ticks.count());
    for (int tick = 4; tick < 10'000; ++tick) EXPECT_FALSE(ticks.count());
}

TEST(ClipTicks, AResetStartsTheCountAgain) {
    ClipTicks ticks;
    for (int change = 0; change < 5; ++change) {
        EXPECT_FALSE(ticks.count());
        EXPECT_FALSE(ticks.count());
        ticks.reset();
    }
    EXPECT_FALSE(ticks.count());
    EXPECT_FALSE(ticks.count());
    EXPECT_TRUE(ticks.count());
}

TEST(ClipTicks, AnUnchangedColorIsDueAgainAfterTick1000000001) {
    constexpr int wrap = 1'000'000'001;
    ClipTicks ticks;
    int due = 0;
    for (int tick = 1; tick <= wrap; ++tick) due += ticks.count();
    EXPECT_EQ(due, 1);
    EXPECT_FALSE(ticks.count());
    EXPECT_FALSE(ticks.count());
    EXPECT_TRUE(ticks.count());
}
