#include "tests/driver/Pixel.h"

#include <algorithm>
#include <cstdint>
#include <iterator>

#include "tests/driver/Input.h"
#include "tests/driver/Wait.h"
#include "tests/driver/WindowText.h"

namespace {

BOOL CALLBACK FindUnpainted(HWND window, LPARAM parameter) {
    if (!::IsWindowVisible(window) || !::GetUpdateRect(window, nullptr, FALSE)) return TRUE;
    *reinterpret_cast<bool*>(parameter) = false;
    return FALSE;
}

bool IsPainted(HWND window) {
    bool isPainted = !::GetUpdateRect(window, nullptr, FALSE);
    if (isPainted) ::EnumChildWindows(window, FindUnpainted, reinterpret_cast<LPARAM>(&isPainted));
    return isPainted;
}

/// A copy of an area of a device context, in memory.
class CopiedArea {
public:
    CopiedArea(HDC source, const RECT& area)
        : width(area.right - area.left),
          height(area.bottom - area.top),
          memory(::CreateCompatibleDC(source)),
          bitmap(::CreateCompatibleBitmap(source, width, height)) {
        const HGDIOBJ before = ::SelectObject(memory, bitmap);
        ::BitBlt(memory, 0, 0, width, height, source, area.left, area.top, SRCCOPY);
        ::SelectObject(memory, before);
    }
    CopiedArea(const CopiedArea&) = delete;
    CopiedArea& operator=(const CopiedArea&) = delete;
    ~CopiedArea() {
        ::DeleteObject(bitmap);
        ::DeleteDC(memory);
    }

    /// Blue, green and red in each, from the lowest byte on.
    std::vector<std::uint32_t> pixels() const {
        std::vector<std::uint32_t> pixels(static_cast<std::size_t>(width) * height);
        BITMAPINFO info{};
        info.bmiHeader.biSize = sizeof info.bmiHeader;
        info.bmiHeader.biWidth = width;
        info.bmiHeader.biHeight = -height;
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        ::GetDIBits(memory, bitmap, 0, height, pixels.data(), &info, DIB_RGB_COLORS);
        return pixels;
    }

private:
    int width;
    int height;
    HDC memory;
    HBITMAP bitmap;
};

Color ColorIn(std::uint32_t pixel) {
    return ColorOf(static_cast<int>(pixel >> 16 & 255), static_cast<int>(pixel >> 8 & 255),
                   static_cast<int>(pixel & 255));
}

}  // namespace

Color PaintedPixel(HWND window, POINT screen) {
    ExpectOnTop(window, screen);
    EXPECT_TRUE(Eventually([window] { return IsPainted(window); }));
    // Twice, because the window may have been painting: what it has painted is on the screen when its program
    // waits for messages again.
    AnswerOf(window, WM_NULL);
    AnswerOf(window, WM_NULL);
    return Pixel(screen);
}

Color Pixel(POINT screen) {
    const HDC context = ::GetDC(nullptr);
    const COLORREF color = ::GetPixel(context, screen.x, screen.y);
    ::ReleaseDC(nullptr, context);
    return Unpack(static_cast<PackedColor>(color));
}

std::vector<Color> PixelsOf(const RECT& screen) {
    const HDC display = ::GetDC(nullptr);
    std::vector<Color> pixels = PixelsIn(display, screen);
    ::ReleaseDC(nullptr, display);
    return pixels;
}

std::vector<Color> PixelsIn(HDC context, const RECT& area) {
    std::vector<Color> colors;
    std::ranges::transform(CopiedArea(context, area).pixels(), std::back_inserter(colors), ColorIn);
    return colors;
}
