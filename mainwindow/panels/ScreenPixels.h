// Which colours are on the screen?
#pragma once

#include "mainwindow/panels/PixelBlock.h"
#include "toolkit/platform/Handles.h"
#include "toolkit/platform/Platform.h"

/// Asks for a new device context of the screen at every reading and releases none, up to a limit, so that
/// long picking does not use them all up. Windows takes them back when the program ends.
class ScreenPixels {
public:
    /// Reads the pixels around a place on any monitor, in screen coordinates, all of them at once. What
    /// cannot be read is (255, 0, 0), and so is a middle that is on no monitor.
    PixelBlock around(POINT place);
    /// The monitors or their modes have changed: the next reading gets a context that knows of it.
    void renew();

private:
    static constexpr int mostContexts = 1000;

    bool copy(POINT place, PixelBlock& block);
    bool makeBitmap();

    HDC newest = nullptr;
    int contexts = 0;

    Owned<HDC, &::DeleteDC> memory;
    Owned<HBITMAP, &::DeleteObject> bitmap;
    const BitmapPixel* bits = nullptr;  ///< the bitmap's
};
