#include "mainwindow/panels/ScreenPixels.h"

#include <algorithm>

void ScreenPixels::renew() { contexts = std::min(contexts, mostContexts - 1); }

Color ScreenPixels::at(POINT place) {
    if (contexts < mostContexts) {
        newest = ::GetDC(nullptr);
        ++contexts;
    }
    return Unpack(static_cast<PackedColor>(::GetPixel(newest, place.x, place.y)));
}
