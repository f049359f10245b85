// How does Windows know the pixels of a block?
#pragma once

#include "mainwindow/panels/PixelBlock.h"
#include "toolkit/platform/Platform.h"

inline BITMAPINFO PixelBitmap() {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = PixelBlock::side;
    info.bmiHeader.biHeight = -PixelBlock::side;  // the first row is the upper one
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    return info;
}
