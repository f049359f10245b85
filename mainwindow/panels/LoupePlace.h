// Where does the loupe stand beside the pointer?
#pragma once

#include "toolkit/platform/Twips.h"

struct LoupeSize {
    int width = 0;
    int height = 0;

    bool operator==(const LoupeSize&) const = default;
};

/// At that distance from the block of pixels around the pointer: above and to the right, where it covers
/// neither the hand nor the preview; on the other side where the monitor ends. It never covers the block,
/// even if it must go past the monitor's edge for that. All in pixels.
Area LoupePlace(const Area& block, const LoupeSize& size, int distance, const Area& monitor);
