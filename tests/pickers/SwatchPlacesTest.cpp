#include "pickers/SwatchPlaces.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <vector>

#include "core/ColorTables.h"

namespace {

constexpr std::array<int, 4> allDpi = {96, 120, 144, 192};

struct Grid {
    std::vector<Area> places;
    int width;
    int height;
};

const std::vector<Grid> grids = {
    {WebsafePlaces(), 11'340, 1'890}, {FailsafePlaces(), 11'340, 705}, {JavaScriptPlaces(), 1'750, 5'000}};

/// How many places each pixel of the grid's window belongs to, row by row.
std::vector<int> Cover(const Grid& grid, int dpi) {
    const int width = PixelsFromTwips(grid.width, dpi);
    const int height = PixelsFromTwips(grid.height, dpi);
    std::vector<int> cover(static_cast<std::size_t>(width) * height, 0);
    for (const Area& place : grid.places) {
        const Area pixels = PixelsFromTwips(place, dpi);
        for (int y = pixels.top; y < pixels.bottom; ++y) {
            for (int x = pixels.left; x < pixels.right; ++x) ++cover.at(y * width + x);
        }
    }
    return cover;
}

}  // namespace

TEST(WebsafePlaces, Black0IsAtTheBottomLeftAndWhite215AtTheTopRight) {
    const auto places = WebsafePlaces();
    ASSERT_EQ(places.size(), 216U);
    EXPECT_EQ(places[0], (Area{0, 1'575, 315, 1'890}));
    EXPECT_EQ(places[215], (Area{11'025, 0, 11'340, 315}));
}

TEST(WebsafePlaces, BlueGrowsUpwardsRedToTheRightAndEachGreenLevelIsABlockOfSix) {
    const auto places = WebsafePlaces();
    EXPECT_EQ(places[1], (Area{0, 1'260, 315, 1'575}));          // one level of blue
    EXPECT_EQ(places[5], (Area{0, 0, 315, 315}));                // all blue
    EXPECT_EQ(places[36], (Area{315, 1'575, 630, 1'890}));       // one level of red
    EXPECT_EQ(places[180], (Area{1'575, 1'575, 1'890, 1'890}));  // all red ends the first block
    EXPECT_EQ(places[6], (Area{1'890, 1'575, 2'205, 1'890}));    // one level of green begins the next
}

TEST(WebsafePlaces, FollowTheLevelsOfEveryTableEntry) {
    const auto places = WebsafePlaces();
    for (int i = 0; i < 216; ++i) {
        const Color& color = colorTables.websafeChannels[i];
        EXPECT_EQ(places[i].left, (color.green / 51 * 6 + color.red / 51) * 315) << i;
        EXPECT_EQ(places[i].bottom, (6 - color.blue / 51) * 315) << i;
    }
}

TEST(FailsafePlaces, FollowOneAnotherEvery708TwipsAndOverlapBy12) {
    const auto places = FailsafePlaces();
    ASSERT_EQ(places.size(), 16U);
    EXPECT_EQ(places[0], (Area{0, 0, 720, 705}));
    EXPECT_EQ(places[1], (Area{708, 0, 1'428, 705}));
    EXPECT_EQ(places[15], (Area{10'620, 0, 11'340, 705}));
    for (int i = 1; i < 16; ++i) EXPECT_EQ(places[i - 1].right - places[i].left, 12);
}

TEST(JavaScriptPlaces, FillRowsOfSevenFromTheTopLeft) {
    const auto places = JavaScriptPlaces();
    ASSERT_EQ(places.size(), 140U);
    EXPECT_EQ(places[0], (Area{0, 0, 250, 250}));
    EXPECT_EQ(places[6], (Area{1'500, 0, 1'750, 250}));
    EXPECT_EQ(places[7], (Area{0, 250, 250, 500}));
    EXPECT_EQ(places[133], (Area{0, 4'750, 250, 5'000}));
    EXPECT_EQ(places[139], (Area{1'500, 4'750, 1'750, 5'000}));
}

TEST(SwatchPlaces, LeaveNothingOfTheWindowOpenAtAnyScaling) {
    for (const int dpi : allDpi) {
        for (const Grid& grid : grids) {
            const std::vector<int> cover = Cover(grid, dpi);
            EXPECT_EQ(std::ranges::count(cover, 0), 0) << grid.places.size() << " at " << dpi;
        }
    }
}

TEST(SwatchPlaces, OnlyTheFailsafeSwatchesOverlap) {
    for (const int dpi : allDpi) {
        EXPECT_EQ(std::ranges::max(Cover(grids[0], dpi)), 1);
        EXPECT_EQ(std::ranges::max(Cover(grids[1], dpi)), 2);
        EXPECT_EQ(std::ranges::max(Cover(grids[2], dpi)), 1);
    }
}

TEST(SwatchPlaces, AtWholeScalingsHaveWholePixels) {
    EXPECT_EQ(PixelsFromTwips(WebsafePlaces()[215], 96), (Area{735, 0, 756, 21}));
    EXPECT_EQ(PixelsFromTwips(WebsafePlaces()[215], 192), (Area{1'470, 0, 1'512, 42}));
    EXPECT_EQ(PixelsFromTwips(JavaScriptPlaces()[139], 96), (Area{100, 317, 117, 333}));
    EXPECT_EQ(PixelsFromTwips(JavaScriptPlaces()[139], 144), (Area{150, 475, 175, 500}));
}
