// What is on the screen?
#pragma once

#include "core/Color.h"
#include "toolkit/platform/Platform.h"

/// The colour of a pixel of the screen.
Color Pixel(POINT screen);
/// The same once the window and all that is in it have been painted.
Color PaintedPixel(HWND window, POINT screen);
