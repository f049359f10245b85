// What is on the screen?
#pragma once

#include <vector>

#include "core/Color.h"
#include "toolkit/platform/Platform.h"

/// The colour of a pixel of the screen.
Color Pixel(POINT screen);
/// The same once no other window covers the place, and the window and all that is in it have been painted.
Color PaintedPixel(HWND window, POINT screen);

/// The pixels of an area of the screen, row by row. As of all areas here, its right and bottom edge are
/// outside.
std::vector<Color> PixelsOf(const RECT& screen);
/// The same of what is painted in a device context.
std::vector<Color> PixelsIn(HDC context, const RECT& area);
