// How large are the parts of the loupe, and how are they painted?
#pragma once

#include <string>

#include "mainwindow/panels/LoupePlace.h"
#include "mainwindow/panels/PixelBlock.h"
#include "toolkit/platform/Platform.h"

/// The pixels, and below them the middle one's colour as code and by its name.
struct LoupeContent {
    PixelBlock block;
    std::string code;
    std::string name;  ///< "" when it has none

    bool operator==(const LoupeContent&) const = default;

    /// Both in one line, for screen readers.
    std::string spoken() const;
};

/// Where the parts are in the window's client area, which is all of it.
struct LoupeLayout {
    /// dpi is that of the monitor, textWidth what the widest text so far takes.
    LoupeLayout(int magnification, int dpi, int textWidth);

    int dpi;
    LoupeSize size;
    RECT picture;
    RECT middle;  ///< the pixel under the pointer
    RECT text;
};

/// What the wider of both texts takes with the room beside it, but never too much for a monitor.
int TextWidth(HWND window, const LoupeContent& content, int dpi);

void PaintLoupe(HWND window, const LoupeLayout& layout, const LoupeContent& content);
