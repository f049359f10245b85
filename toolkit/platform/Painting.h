// How do the controls that the program draws itself paint?
#pragma once

#include <initializer_list>

#include "toolkit/platform/Platform.h"

/// BeginPaint and EndPaint around the painting of a window.
class Painting {
public:
    explicit Painting(HWND window) : window(window) { ::BeginPaint(window, &paint); }
    Painting(const Painting&) = delete;
    Painting& operator=(const Painting&) = delete;
    ~Painting() { ::EndPaint(window, &paint); }

    HDC context() const { return paint.hdc; }
    const RECT& area() const { return paint.rcPaint; }

private:
    HWND window;
    PAINTSTRUCT paint{};
};

/// A line that sets an area of any colour off from what surrounds it.
inline void PaintEdge(HDC context, const RECT& area) {
    ::FrameRect(context, &area, ::GetSysColorBrush(COLOR_3DSHADOW));
}

/// Windows may hide the focus until the keyboard is used.
inline bool ShowsFocus(HWND window) {
    return !(::SendMessageW(window, WM_QUERYUISTATE, 0, 0) & UISF_HIDEFOCUS);
}

/// Shows the focus: black around white, to be visible on any colour; width is that of each line.
inline void PaintFocusFrame(HWND window, HDC context, RECT frame, int width) {
    if (!ShowsFocus(window)) return;
    for (const int color : {BLACK_BRUSH, WHITE_BRUSH}) {
        for (int line = 0; line < width; ++line) {
            ::FrameRect(context, &frame, static_cast<HBRUSH>(::GetStockObject(color)));
            ::InflateRect(&frame, -1, -1);
        }
    }
}

/// Fills area without making a brush.
inline void FillWithColor(HDC context, const RECT& area, COLORREF color) {
    // An empty text on an opaque background is cheaper than a brush whose colour changes each time.
    ::SetBkColor(context, color);
    ::ExtTextOutW(context, 0, 0, ETO_OPAQUE, &area, nullptr, 0, nullptr);
}
