// How well can text in one colour be read on another?
#pragma once

#include <string>
#include <string_view>

#include "core/Color.h"

// The rule of the Web's accessibility guidelines, WCAG 2.2.

/// From 0 for black to 1 for white.
double RelativeLuminance(const Color& color);

/// From 1 for colours of the same luminance to 21 for black and white, whichever is the text.
double ContrastRatio(const Color& one, const Color& other);

/// The ratio with two decimals, cut: a ratio just below a limit never looks as if it reached it.
std::string RatioText(double ratio);

/// "AAA", "AA", "AA 18 pt" when only large text is legible, or "-".
std::string_view ContrastGrade(double ratio);
