#include "mainwindow/panels/ScreenPixels.h"

Color ScreenPixels::at(POINT place) {
    if (contexts < mostContexts) {
        newest = ::GetDC(nullptr);
        ++contexts;
    }
    return Unpack(static_cast<PackedColor>(::GetPixel(newest, place.x, place.y)));
}
