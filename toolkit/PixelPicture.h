// How are hundreds of coloured areas shown in one call?
#pragma once

#include <cstdint>
#include <vector>

#include "toolkit/Platform.h"

/// A picture that is put together in memory. Black at first.
class PixelPicture {
public:
    /// In pixels; neither is negative.
    PixelPicture(int width, int height);

    /// What lies outside the picture is left away.
    void fill(const RECT& area, COLORREF color);

    /// In the left upper corner of context.
    void show(HDC context) const;

private:
    int width;
    int height;
    std::vector<std::uint32_t> pixels;  // row by row from the top; blue in the low byte
};
