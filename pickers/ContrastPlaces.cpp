#include "pickers/ContrastPlaces.h"

#include "pickers/contrast.rc.h"

namespace {

constexpr int ratioWidth = 585;  // of the widest, 21.00
constexpr int gradeLeft = 675;

int LeftOf(int column) { return CONTRAST_LEFT + column * (CONTRAST_CELL_WIDTH + CONTRAST_GAP); }

int TopOf(int row) { return CONTRAST_TOP + row * (CONTRAST_CELL_HEIGHT + CONTRAST_GAP); }

}  // namespace

std::vector<Area> ContrastCells() {
    std::vector<Area> cells;
    for (int i = 0; i < CONTRAST_MARKS * CONTRAST_MARKS; ++i) {
        const int left = LeftOf(i % CONTRAST_MARKS);
        const int top = TopOf(i / CONTRAST_MARKS);
        cells.push_back({left, top, left + CONTRAST_CELL_WIDTH, top + CONTRAST_CELL_HEIGHT});
    }
    return cells;
}

HeadingPlaces RowHeading(int mark) {
    const int top = TopOf(mark);
    const int bottom = top + CONTRAST_CELL_HEIGHT;
    const int right = CONTRAST_LEFT - CONTRAST_SPACE;
    const int left = right - CONTRAST_SAMPLE;
    return {.name = {CONTRAST_MARGIN, top, left - CONTRAST_SPACE, bottom},
            .sample = {left, top, right, bottom}};
}

HeadingPlaces ColumnHeading(int mark) {
    const int left = LeftOf(mark);
    const int right = left + CONTRAST_CELL_WIDTH;
    const int bottom = CONTRAST_TOP - CONTRAST_SPACE;
    const int top = bottom - CONTRAST_SAMPLE;
    return {.name = {left, CONTRAST_MARGIN, right, CONTRAST_MARGIN + CONTRAST_NAME_HEIGHT},
            .sample = {left, top, right, bottom}};
}

Area ContrastRow(int mark) {
    return {CONTRAST_MARGIN, TopOf(mark), CONTRAST_RIGHT, TopOf(mark) + CONTRAST_CELL_HEIGHT};
}

Area ContrastColumn(int mark) {
    return {LeftOf(mark), CONTRAST_MARGIN, LeftOf(mark) + CONTRAST_CELL_WIDTH, CONTRAST_BOTTOM};
}

Area RatioPlace(const Area& cell) { return {cell.left, cell.top, cell.left + ratioWidth, cell.bottom}; }

Area GradePlace(const Area& cell) { return {cell.left + gradeLeft, cell.top, cell.right, cell.bottom}; }

Area ContrastStatus() {
    return {CONTRAST_LEFT, CONTRAST_STATUS_TOP, CONTRAST_RIGHT, CONTRAST_STATUS_TOP + CONTRAST_NAME_HEIGHT};
}
