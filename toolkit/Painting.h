// How do the controls that the program draws itself paint?
#pragma once

#include "toolkit/Platform.h"

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

/// Fills area without a brush of its own.
inline void FillWithColor(HDC context, const RECT& area, COLORREF color) {
    // An empty text on an opaque ground: cheaper than a brush that changes its colour each time.
    ::SetBkColor(context, color);
    ::ExtTextOutW(context, 0, 0, ETO_OPAQUE, &area, nullptr, 0, nullptr);
}
