// Which colours does a row of the screen show?
#pragma once

#include <vector>

#include "core/Color.h"
#include "toolkit/Platform.h"

/// The pixels from place to the right, read at once.
class ScreenRow {
public:
    ScreenRow(POINT place, int width);
    /// The pixel so many to the right of place.
    Color at(int offset) const { return Unpack(static_cast<PackedColor>(pixels.at(offset))); }

private:
    std::vector<COLORREF> pixels;
};
