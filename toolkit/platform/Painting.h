// How do the controls that the program draws itself paint?
#pragma once

#include "toolkit/platform/Platform.h"

/// The platform's permission to paint what is out of date of a window.
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

/// The line that tells an area of any colour from what is around it.
inline void PaintEdge(HDC context, const RECT& area) {
    ::FrameRect(context, &area, ::GetSysColorBrush(COLOR_3DSHADOW));
}

/// A window may hide where the focus is until the keyboard is used.
inline bool ShowsFocus(HWND window) {
    return !(::SendMessageA(window, WM_QUERYUISTATE, 0, 0) & UISF_HIDEFOCUS);
}

/// Where the focus is. Black around white, so that it is seen on any colour; each line has that width.
inline void PaintFocusFrame(HWND window, HDC context, RECT frame, int width) {
    if (!ShowsFocus(window)) return;
    for (const int color : {BLACK_BRUSH, WHITE_BRUSH}) {
        for (int line = 0; line < width; ++line) {
            ::FrameRect(context, &frame, static_cast<HBRUSH>(::GetStockObject(color)));
            ::InflateRect(&frame, -1, -1);
        }
    }
}

/// Fills area without a brush of its own.
inline void FillWithColor(HDC context, const RECT& area, COLORREF color) {
    // An empty text on an opaque ground: cheaper than a brush that changes its colour each time.
    ::SetBkColor(context, color);
    ::ExtTextOutW(context, 0, 0, ETO_OPAQUE, &area, nullptr, 0, nullptr);
}
