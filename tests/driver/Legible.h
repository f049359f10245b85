// Can the user tell what is drawn in a part of the screen from its background?
#pragma once

#include "core/Color.h"
#include "toolkit/platform/Platform.h"

/// What a part of the screen looks like.
struct Look {
    Color ground;     ///< the colour of most of its pixels
    double contrast;  ///< of the pixel that is easiest to tell from the ground: from 1, none, to 21
};

Look LookAt(const RECT& screen);

/// Waits until something there stands out so much from the ground: what is written comes after its ground.
[[nodiscard]] bool BecomesLegible(const RECT& screen, double least);

double Contrast(const Color& one, const Color& other);

// Text needs more than lines and pictures; these are the figures of the Web's guidelines.
inline constexpr double legible = 4.5;
inline constexpr double visible = 3;

/// Expects every control that is on the screen and has a text or a picture to be legible, and a disabled one
/// to be visible.
void ExpectLegible(HWND window);
