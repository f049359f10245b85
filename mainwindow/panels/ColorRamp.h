// Which 256 colours does the colour bar show, and where does each stand?
#pragma once

#include <array>

#include "core/Color.h"

inline constexpr int barSteps = 256;

/// The step that shows the colour itself: its smallest channel.
int BarStepOf(const Color& color);

/// Step i adds i - BarStepOf(color) to each channel and limits it to 0..255; step 255 is white.
std::array<Color, barSteps> ColorRamp(const Color& color);

/// Left edge of step i in pixels at 96 DPI, 0 to 731, rounded to the nearest. A step is barStepWidth wide and
/// lies over its left neighbour where the two overlap.
constexpr int BarStepLeft(int step) { return (step * 731 + 127) / 255; }
inline constexpr int barStepWidth = 3;
inline constexpr int barStepHeight = 20;
