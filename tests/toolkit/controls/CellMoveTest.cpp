#include "toolkit/controls/CellMove.h"

#include <gtest/gtest.h>

#include <vector>

#include "mainwindow/panels/ColorRamp.h"
#include "pickers/SwatchPlaces.h"

namespace {

std::vector<Area> Bar() {
    std::vector<Area> steps;
    steps.reserve(barSteps);
    for (int step = 0; step < barSteps; ++step)
        steps.push_back({BarStepLeft(step), 0, BarStepLeft(step) + barStepWidth, barStepHeight});
    return steps;
}

}  // namespace

TEST(CellMove, GoesThroughEveryStepOfTheBarAndStopsAtItsEnds) {
    const std::vector<Area> bar = Bar();
    for (int step = 0; step < 255; ++step) {
        EXPECT_EQ(NextCell(bar, step, CellStep::right), step + 1);
        EXPECT_EQ(NextCell(bar, step + 1, CellStep::left), step);
    }
    EXPECT_EQ(NextCell(bar, 255, CellStep::right), 255);
    EXPECT_EQ(NextCell(bar, 0, CellStep::left), 0);
    EXPECT_EQ(NextCell(bar, 100, CellStep::up), 100);
    EXPECT_EQ(NextCell(bar, 100, CellStep::down), 100);
    EXPECT_EQ(NextCell(bar, 100, CellStep::first), 0);
    EXPECT_EQ(NextCell(bar, 100, CellStep::last), 255);
}

TEST(CellMove, FollowsTheEyeInTheWebsafeGridWhoseCellsStandInAnotherOrder) {
    const std::vector<Area> cells = WebsafePlaces();
    constexpr int black = 0;        // bottom left
    constexpr int green51 = 6;      // seventh column, bottom row
    constexpr int red255 = 5 * 36;  // sixth column, bottom row
    constexpr int white = 215;      // top right
    EXPECT_EQ(NextCell(cells, black, CellStep::up), 1);
    EXPECT_EQ(NextCell(cells, black, CellStep::right), 36);
    EXPECT_EQ(NextCell(cells, red255, CellStep::right), green51);
    EXPECT_EQ(NextCell(cells, black, CellStep::down), black);
    EXPECT_EQ(NextCell(cells, white, CellStep::right), white);
    EXPECT_EQ(NextCell(cells, white, CellStep::up), white);
    EXPECT_EQ(NextCell(cells, black, CellStep::last), white - 5);
    EXPECT_EQ(NextCell(cells, white, CellStep::first), 5);
}

TEST(CellMove, GoesThroughTheFailsafeRowWhoseCellsOverlap) {
    const std::vector<Area> cells = FailsafePlaces();
    for (int cell = 0; cell < 15; ++cell) EXPECT_EQ(NextCell(cells, cell, CellStep::right), cell + 1);
    EXPECT_EQ(NextCell(cells, 7, CellStep::first), 0);
    EXPECT_EQ(NextCell(cells, 7, CellStep::last), 15);
}

TEST(CellMove, KeepsToTheColumnOfTheJavaScriptGrid) {
    const std::vector<Area> cells = JavaScriptPlaces();
    EXPECT_EQ(NextCell(cells, 3, CellStep::down), 10);
    EXPECT_EQ(NextCell(cells, 10, CellStep::up), 3);
    EXPECT_EQ(NextCell(cells, 6, CellStep::right), 6);
    EXPECT_EQ(NextCell(cells, 139, CellStep::down), 139);
    EXPECT_EQ(NextCell(cells, 136, CellStep::first), 133);
}
