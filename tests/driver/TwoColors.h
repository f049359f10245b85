// What does the program that ignores scaling show, in the pixels that it believes to have?
#pragma once

#include "toolkit/platform/Platform.h"

namespace two_colors {

inline constexpr const char* program = "tests/TwoColors.exe";
inline constexpr const char* className = "TwoColors";
inline constexpr int place = 20;  // from the left and from the top of the screen
inline constexpr int width = 120;
inline constexpr int height = 81;
inline constexpr COLORREF left = RGB(0x12, 0x34, 0x56);
inline constexpr COLORREF right = RGB(0xFE, 0x01, 0x80);

}  // namespace two_colors
