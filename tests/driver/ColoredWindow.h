// How does a test put a known colour on the screen?
#pragma once

#include "tests/driver/Huevox.h"
#include "tests/driver/Wait.h"

/// A small window of the test's own, of one colour, on top of the others.
class ColoredWindow {
public:
    ColoredWindow(POINT place, COLORREF color) {
        window = ::CreateWindowExA(WS_EX_TOPMOST | WS_EX_TOOLWINDOW | WS_EX_NOACTIVATE, "Static", "",
                                   WS_POPUP, place.x, place.y, 40, 40, nullptr, nullptr, nullptr, nullptr);
        ::ShowWindow(window, SW_SHOWNOACTIVATE);
        EXPECT_TRUE(Eventually([&] {
            paint(color);
            return Pixel(place) == Unpack(static_cast<PackedColor>(color));
        }));
    }
    ColoredWindow(const ColoredWindow&) = delete;
    ColoredWindow& operator=(const ColoredWindow&) = delete;
    ~ColoredWindow() { ::DestroyWindow(window); }

private:
    void paint(COLORREF color) const {
        MSG message;
        while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) ::DispatchMessageW(&message);
        const HDC context = ::GetDC(window);
        const HBRUSH brush = ::CreateSolidBrush(color);
        constexpr RECT all = {0, 0, 40, 40};
        ::FillRect(context, &all, brush);
        ::DeleteObject(brush);
        ::ReleaseDC(window, context);
    }

    HWND window = nullptr;
};
