#include "randomuser/Screen.h"

#include <algorithm>
#include <cstdint>

ScreenPart::ScreenPart(POINT place, int width, int height)
    : place(place), width(width), pixels(static_cast<std::size_t>(width * height)) {
    BITMAPINFO form{};
    form.bmiHeader = {sizeof(BITMAPINFOHEADER), width, -height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    void* bits = nullptr;
    const HDC screen = ::GetDC(nullptr);
    const HDC memory = ::CreateCompatibleDC(screen);
    const HBITMAP bitmap = ::CreateDIBSection(screen, &form, DIB_RGB_COLORS, &bits, nullptr, 0);
    const HGDIOBJ before = ::SelectObject(memory, bitmap);
    ::BitBlt(memory, 0, 0, width, height, screen, place.x, place.y, SRCCOPY);
    ::GdiFlush();
    // A pixel of a bitmap has blue in its low byte.
    const auto* first = static_cast<const std::uint32_t*>(bits);
    std::transform(first, first + pixels.size(), pixels.begin(), [](std::uint32_t pixel) {
        return RGB((pixel >> 16) & 255, (pixel >> 8) & 255, pixel & 255);
    });
    ::SelectObject(memory, before);
    ::DeleteObject(bitmap);
    ::DeleteDC(memory);
    ::ReleaseDC(nullptr, screen);
}
