#include "mainwindow/panels/LoupePlace.h"

#include <gtest/gtest.h>

namespace {

constexpr Area monitor = {-1'000, -500, 1'000, 500};
constexpr LoupeSize size = {100, 150};
constexpr int distance = 20;

Area Block(int x, int y) { return {x - 7, y - 7, x + 8, y + 8}; }

Area At(int left, int top) { return {left, top, left + size.width, top + size.height}; }

Area PlaceAt(int x, int y, const Area& within = monitor) {
    return LoupePlace(Block(x, y), size, distance, within);
}

bool AreApart(const Area& one, const Area& other) {
    return one.right <= other.left || other.right <= one.left || one.bottom <= other.top ||
           other.bottom <= one.top;
}

}  // namespace

TEST(LoupePlace, IsAboveAndToTheRight) { EXPECT_EQ(PlaceAt(0, 0), At(28, -177)); }

TEST(LoupePlace, ChangesToTheLeftAtTheRightEdge) {
    EXPECT_EQ(PlaceAt(872, 0), At(900, -177));
    EXPECT_EQ(PlaceAt(873, 0), At(746, -177));
}

TEST(LoupePlace, ChangesToBelowAtTheUpperEdge) {
    EXPECT_EQ(PlaceAt(0, -323), At(28, -500));
    EXPECT_EQ(PlaceAt(0, -324), At(28, -296));
}

TEST(LoupePlace, ChangesBothInTheCorner) { EXPECT_EQ(PlaceAt(999, -500), At(872, -472)); }

TEST(LoupePlace, StaysOnAMonitorThatIsTooNarrowForBothSides) {
    const Area narrow = {0, 0, 110, 1'000};
    EXPECT_EQ(PlaceAt(50, 500, narrow), At(10, 323));
    EXPECT_EQ(PlaceAt(50, 500, {0, 0, 90, 1'000}), At(0, 323));
}

TEST(LoupePlace, StaysOnAMonitorThatIsTooLowForBothSides) {
    EXPECT_EQ(PlaceAt(500, 80, {0, 0, 1'000, 160}), At(528, 0));
}

TEST(LoupePlace, GoesPastTheEdgeRatherThanOverTheBlock) {
    EXPECT_EQ(PlaceAt(50, 50, {0, 0, 110, 110}), At(78, -127));
}

TEST(LoupePlace, NeverCoversTheBlockAndStaysOnTheMonitorWhereItFits) {
    for (int y = monitor.top; y < monitor.bottom; y += 3) {
        for (int x = monitor.left; x < monitor.right; ++x) {
            const Area place = PlaceAt(x, y);
            ASSERT_TRUE(AreApart(place, Block(x, y))) << x << ", " << y;
            ASSERT_TRUE(place.left >= monitor.left && place.right <= monitor.right &&
                        place.top >= monitor.top && place.bottom <= monitor.bottom)
                << x << ", " << y;
        }
    }
}
