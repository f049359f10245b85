// How does a test put a known colour on the screen?
#pragma once

#include "tests/driver/Huevox.h"
#include "tests/driver/Wait.h"

/// A small window of the test's own, of one colour, on top of the others. It keeps the colour when messages
/// are handled, as they are for the next such window.
class ColoredWindow {
public:
    ColoredWindow(POINT place, COLORREF color) {
        WNDCLASSA own{};
        own.lpfnWndProc = proc;
        own.lpszClassName = "ColoredWindow";
        ::RegisterClassA(&own);
        window = ::CreateWindowExA(WS_EX_TOPMOST | WS_EX_TOOLWINDOW | WS_EX_NOACTIVATE, "ColoredWindow", "",
                                   WS_POPUP, place.x, place.y, 40, 40, nullptr, nullptr, nullptr, nullptr);
        ::SetWindowLongPtrA(window, GWLP_USERDATA, static_cast<LONG_PTR>(color));
        ::ShowWindow(window, SW_SHOWNOACTIVATE);
        EXPECT_TRUE(Eventually([&] {
            MSG message;
            while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) ::DispatchMessageW(&message);
            return Pixel(place) == Unpack(static_cast<PackedColor>(color));
        }));
    }
    ColoredWindow(const ColoredWindow&) = delete;
    ColoredWindow& operator=(const ColoredWindow&) = delete;
    ~ColoredWindow() { ::DestroyWindow(window); }

private:
    static LRESULT CALLBACK proc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        if (message != WM_PAINT) return ::DefWindowProcA(window, message, wParam, lParam);
        PAINTSTRUCT painting;
        const HDC context = ::BeginPaint(window, &painting);
        const HBRUSH brush =
            ::CreateSolidBrush(static_cast<COLORREF>(::GetWindowLongPtrA(window, GWLP_USERDATA)));
        ::FillRect(context, &painting.rcPaint, brush);
        ::DeleteObject(brush);
        ::EndPaint(window, &painting);
        return 0;
    }

    HWND window = nullptr;
};
