// How does a test allow for the display's scaling?
#pragma once

#include "toolkit/platform/Platform.h"

/// Pixels at 96 DPI in pixels of the window.
inline int Scaled(HWND window, int pixels) {
    return ::MulDiv(pixels, static_cast<int>(::GetDpiForWindow(window)), USER_DEFAULT_SCREEN_DPI);
}
