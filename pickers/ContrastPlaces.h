// Where does each part of the contrast window stand?
#pragma once

#include <vector>

#include "toolkit/platform/Twips.h"

// In twips from the left and top of the window.

/// Row by row.
std::vector<Area> ContrastCells();

/// A mark's name and, between it and the cells, its sample.
struct HeadingPlaces {
    Area name;
    Area sample;
};

HeadingPlaces RowHeading(int mark);
HeadingPlaces ColumnHeading(int mark);

/// All of a row or column, with its heading.
Area ContrastRow(int mark);
Area ContrastColumn(int mark);

/// Within a cell: the ratio at its right edge, the grade at its left.
Area RatioPlace(const Area& cell);
Area GradePlace(const Area& cell);

/// The text of the cell that has the frame.
Area ContrastStatus();
