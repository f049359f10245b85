// What does a window of the test's own process show?
#pragma once

#include "toolkit/platform/Platform.h"

/// A pixel of the client area.
inline COLORREF PixelIn(HWND window, POINT point) {
    const HDC context = ::GetDC(window);
    const COLORREF color = ::GetPixel(context, point.x, point.y);
    ::ReleaseDC(window, context);
    return color;
}

/// The colour that a form wants behind the text of a box.
inline COLORREF BackColorOf(HWND form, HWND box) {
    const HDC context = ::GetDC(box);
    ::SendMessageA(form, WM_CTLCOLOREDIT, reinterpret_cast<WPARAM>(context), reinterpret_cast<LPARAM>(box));
    const COLORREF color = ::GetBkColor(context);
    ::ReleaseDC(box, context);
    return color;
}
