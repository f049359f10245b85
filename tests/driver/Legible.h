// Can the user tell what stands in a part of the screen from what it stands on?
#pragma once

#include "core/Color.h"
#include "toolkit/platform/Platform.h"

/// What a part of the screen looks like.
struct Look {
    Color ground;     ///< the colour of most of its pixels
    double contrast;  ///< of the pixel that is easiest to tell from the ground: from 1, none, to 21
};

Look LookAt(const RECT& screen);

double Contrast(const Color& one, const Color& other);

// Text needs more than lines and pictures; these are the figures of the Web's guidelines.
inline constexpr double legible = 4.5;
inline constexpr double visible = 3;

/// Expects, of each control of the window that is on the screen and has a text or a picture, that it is
/// legible; what is disabled, that it is visible.
void ExpectLegible(HWND window);
