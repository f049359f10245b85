// Do the parts of the contrast window stand apart, in line and inside it?
#include "pickers/ContrastPlaces.h"

#include <gtest/gtest.h>

#include <vector>

#include "pickers/contrast.rc.h"

namespace {

constexpr int marks = 6;

bool AreDisjoint(const Area& one, const Area& other) {
    return one.right <= other.left || other.right <= one.left || one.bottom <= other.top ||
           other.bottom <= one.top;
}

bool Holds(const Area& outer, const Area& inner) {
    return outer.left <= inner.left && outer.top <= inner.top && inner.right <= outer.right &&
           inner.bottom <= outer.bottom;
}

std::vector<Area> AllParts() {
    std::vector<Area> parts = ContrastCells();
    for (int mark = 0; mark < marks; ++mark) {
        for (const HeadingPlaces& heading : {RowHeading(mark), ColumnHeading(mark)}) {
            parts.push_back(heading.name);
            parts.push_back(heading.sample);
        }
    }
    parts.push_back(ContrastStatus());
    return parts;
}

}  // namespace

TEST(ContrastPlaces, AreDisjointAndInsideTheWindow) {
    const std::vector<Area> parts = AllParts();
    ASSERT_EQ(parts.size(), 36U + 24U + 1U);
    const Area window = {0, 0, CONTRAST_WIDTH, CONTRAST_HEIGHT};
    for (std::size_t i = 0; i < parts.size(); ++i) {
        EXPECT_TRUE(Holds(window, parts[i])) << i;
        EXPECT_GT(parts[i].width(), 0);
        EXPECT_GT(parts[i].height(), 0);
        for (std::size_t j = 0; j < i; ++j) EXPECT_TRUE(AreDisjoint(parts[i], parts[j])) << i << ' ' << j;
    }
}

TEST(ContrastPlaces, OfARowAndAColumnMeetInTheirCell) {
    const std::vector<Area> cells = ContrastCells();
    for (int row = 0; row < marks; ++row) {
        for (int column = 0; column < marks; ++column) {
            const Area& cell = cells[static_cast<std::size_t>(row) * marks + column];
            EXPECT_TRUE(Holds(ContrastRow(row), cell));
            EXPECT_TRUE(Holds(ContrastColumn(column), cell));
            EXPECT_EQ(RowHeading(row).sample.top, cell.top);
            EXPECT_EQ(RowHeading(row).sample.bottom, cell.bottom);
            EXPECT_EQ(ColumnHeading(column).sample.left, cell.left);
            EXPECT_EQ(ColumnHeading(column).sample.right, cell.right);
        }
    }
}

TEST(ContrastPlaces, OfARowAndAColumnHoldTheirHeadings) {
    for (int mark = 0; mark < marks; ++mark) {
        EXPECT_TRUE(Holds(ContrastRow(mark), RowHeading(mark).name));
        EXPECT_TRUE(Holds(ContrastRow(mark), RowHeading(mark).sample));
        EXPECT_TRUE(Holds(ContrastColumn(mark), ColumnHeading(mark).name));
        EXPECT_TRUE(Holds(ContrastColumn(mark), ColumnHeading(mark).sample));
    }
}

TEST(ContrastPlaces, OfTheRatioAndTheGradeShareTheCell) {
    const Area cell = ContrastCells().back();
    EXPECT_TRUE(Holds(cell, RatioPlace(cell)));
    EXPECT_TRUE(Holds(cell, GradePlace(cell)));
    EXPECT_TRUE(AreDisjoint(RatioPlace(cell), GradePlace(cell)));
}

TEST(ContrastPlaces, AreAsWideAsTheMainWindow) { EXPECT_EQ(CONTRAST_WIDTH, 758 * twipsPerPixel); }
