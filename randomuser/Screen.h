// Which colours does a part of the screen show?
#pragma once

#include <vector>

#include "core/Color.h"
#include "toolkit/platform/Platform.h"

/// The pixels from place to the right and down, read at once.
class ScreenPart {
public:
    ScreenPart(POINT place, int width, int height);
    /// A pixel of the part, by its place on the screen.
    Color at(POINT pixel) const {
        const LONG index = (pixel.y - place.y) * width + pixel.x - place.x;
        return Unpack(static_cast<PackedColor>(pixels.at(static_cast<std::size_t>(index))));
    }

private:
    POINT place;
    int width;
    std::vector<COLORREF> pixels;
};
