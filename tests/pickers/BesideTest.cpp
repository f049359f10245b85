#include "pickers/Beside.h"

#include <gtest/gtest.h>

#include <array>
#include <vector>

namespace {

constexpr Area work = {0, 0, 1'000, 800};
constexpr int width = 200;
constexpr int height = 100;

Area BesideOne(const Area& other, const Area& free = work) {
    return Beside(std::array{other}, width, height, free);
}

}  // namespace

TEST(Beside, IsAtTheRightWithTheTopsAlike) {
    EXPECT_EQ(BesideOne({300, 200, 700, 600}), (Area{700, 200, 900, 300}));
}

TEST(Beside, IsAtTheRightAsLongAsItFits) {
    EXPECT_EQ(BesideOne({300, 200, 800, 600}), (Area{800, 200, 1'000, 300}));
    EXPECT_EQ(BesideOne({300, 200, 801, 600}), (Area{100, 200, 300, 300}));
}

TEST(Beside, ElseAtTheLeftAsLongAsItFits) {
    EXPECT_EQ(BesideOne({200, 200, 900, 600}), (Area{0, 200, 200, 300}));
    EXPECT_EQ(BesideOne({199, 200, 900, 600}), (Area{199, 600, 399, 700}));
}

TEST(Beside, ElseBelowAsLongAsItFits) {
    EXPECT_EQ(BesideOne({100, 200, 900, 700}), (Area{100, 700, 300, 800}));
    EXPECT_EQ(BesideOne({100, 200, 900, 701}), (Area{100, 100, 300, 200}));
}

TEST(Beside, ElseAboveAsLongAsItFits) {
    EXPECT_EQ(BesideOne({100, 100, 900, 750}), (Area{100, 0, 300, 100}));
    EXPECT_EQ(BesideOne({100, 99, 900, 750}), (Area{800, 700, 1'000, 800}));
}

TEST(Beside, StaysOnTheWorkAreaWhereTheOtherLeavesIt) {
    EXPECT_EQ(BesideOne({300, -50, 700, 600}), (Area{700, 0, 900, 100}));
    EXPECT_EQ(BesideOne({300, 750, 700, 900}), (Area{700, 700, 900, 800}));
}

TEST(Beside, CoversNoneOfSeveralAndGoesOnToTheNext) {
    const Area main = {100, 200, 900, 600};
    const Area below = {100, 600, 300, 700};
    const Area above = {100, 100, 300, 200};
    EXPECT_EQ(Beside(std::array{main}, width, height, work), below);
    EXPECT_EQ(Beside(std::array{main, below}, width, height, work), above);
    EXPECT_EQ(Beside(std::array{main, below, above}, width, height, work), (Area{300, 600, 500, 700}));
}

TEST(Beside, OnAMonitorAtTheLeftIsThereToo) {
    const Area left = {-1'000, 0, 0, 800};
    EXPECT_EQ(BesideOne({-700, 200, -300, 600}, left), (Area{-300, 200, -100, 300}));
}

TEST(Beside, AWindowLargerThanTheWorkAreaBeginsAtItsLeftAndTop) {
    EXPECT_EQ(Beside(std::array{Area{300, 200, 700, 600}}, 2'000, 1'000, work), (Area{0, 0, 2'000, 1'000}));
}

TEST(Beside, OfAMinimisedWindowIsInTheCorner) {
    EXPECT_EQ(BesideOne({-32'000, -32'000, -31'840, -31'970}), (Area{800, 700, 1'000, 800}));
}
