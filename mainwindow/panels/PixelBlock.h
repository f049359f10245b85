// What does the loupe show of the screen?
#pragma once

#include <array>
#include <cstdint>

#include "core/Color.h"

/// A pixel as Windows' bitmaps of 32 bits hold it: 0x00RRGGBB.
using BitmapPixel = std::uint32_t;

/// Stands for a place that is on no monitor.
inline constexpr BitmapPixel nothingThere = 0xFF000000;
/// Stands for a pixel that could not be read.
inline constexpr BitmapPixel unreadable = 0x00FF0000;

constexpr Color ColorOf(BitmapPixel pixel) {
    return ColorOf(static_cast<int>(pixel >> 16 & 255), static_cast<int>(pixel >> 8 & 255),
                   static_cast<int>(pixel & 255));
}

/// The pixels around one, row by row.
struct PixelBlock {
    static constexpr int reach = 7;  ///< so many on each side of the middle
    static constexpr int side = 2 * reach + 1;
    static constexpr int count = side * side;
    static constexpr int middleIndex = count / 2;

    std::array<BitmapPixel, count> pixels = {};

    bool operator==(const PixelBlock&) const = default;

    Color middle() const { return ColorOf(pixels[middleIndex]); }
};
