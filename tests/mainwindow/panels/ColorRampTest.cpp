#include "mainwindow/panels/ColorRamp.h"

#include <gtest/gtest.h>

TEST(ColorRamp, RedBrightensToWhite) {
    const auto ramp = ColorRamp(ColorOf(255, 0, 0));
    for (int step = 0; step < barSteps; ++step) EXPECT_EQ(ramp[step], ColorOf(255, step, step));
}

TEST(ColorRamp, BlackAndWhiteGiveThePlainGreyRamp) {
    for (const int grey : {0, 255}) {
        const auto ramp = ColorRamp(ColorOf(grey, grey, grey));
        for (int step = 0; step < barSteps; ++step) EXPECT_EQ(ramp[step], ColorOf(step, step, step));
    }
}

TEST(ColorRamp, TheSmallestChannelIsTheColorsOwnStep) {
    const auto ramp = ColorRamp(ColorOf(100, 150, 200));
    EXPECT_EQ(ramp[0], ColorOf(0, 50, 100));
    EXPECT_EQ(ramp[100], ColorOf(100, 150, 200));
    EXPECT_EQ(ramp[155], ColorOf(155, 205, 255));
    EXPECT_EQ(ramp[156], ColorOf(156, 206, 255));
    EXPECT_EQ(ramp[200], ColorOf(200, 250, 255));
    EXPECT_EQ(ramp[255], ColorOf(255, 255, 255));
}

TEST(ColorRamp, AnyChannelMayBeTheSmallest) {
    for (int smallest = 0; smallest < 256; ++smallest) {
        const int other = (smallest + 255) / 2;
        for (const Color& color :
             {ColorOf(smallest, other, 255), ColorOf(other, 255, smallest), ColorOf(255, smallest, other)}) {
            const auto ramp = ColorRamp(color);
            ASSERT_EQ(BarStepOf(color), smallest);
            ASSERT_EQ(ramp[smallest], color);
            ASSERT_EQ(ramp[255], ColorOf(255, 255, 255));
        }
    }
}

TEST(BarSteps, SpreadOver734PixelsWithoutAGap) {
    EXPECT_EQ(BarStepLeft(0), 0);
    EXPECT_EQ(BarStepLeft(128), 367);
    EXPECT_EQ(BarStepLeft(255) + barStepWidth, 734);
    for (int step = 1; step < barSteps; ++step) {
        const int distance = BarStepLeft(step) - BarStepLeft(step - 1);
        EXPECT_TRUE(distance == 2 || distance == 3) << step;
    }
}

TEST(BarSteps, AreAsWideAtOneEndAsAtTheOther) {
    EXPECT_EQ(BarStepLeft(1), barStepWidth);  // the first one lies under no other
    for (int step = 0; step < barSteps; ++step)
        EXPECT_EQ(BarStepLeft(step) + BarStepLeft(255 - step), BarStepLeft(255)) << step;
}
