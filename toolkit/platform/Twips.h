// How many pixels is a length in twips?
#pragma once

/// 1,440 twips are an inch: 15 are a pixel at 96 DPI.
inline constexpr int twipsPerInch = 1440;
inline constexpr int twipsPerPixel = 15;

/// A rectangle in twips or pixels; right and bottom are the first outside.
struct Area {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    int width() const { return right - left; }
    int height() const { return bottom - top; }

    friend constexpr bool operator==(const Area&, const Area&) = default;
};

/// Rounded to the nearest pixel; twips are not negative.
constexpr int PixelsFromTwips(int twips, int dpi) { return (twips * dpi + twipsPerInch / 2) / twipsPerInch; }

/// Edges are rounded, not sizes, so that what meets in twips meets at every DPI.
constexpr Area PixelsFromTwips(const Area& twips, int dpi) {
    return {PixelsFromTwips(twips.left, dpi), PixelsFromTwips(twips.top, dpi),
            PixelsFromTwips(twips.right, dpi), PixelsFromTwips(twips.bottom, dpi)};
}
