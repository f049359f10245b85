#include "toolkit/PixelPicture.h"

#include <algorithm>

PixelPicture::PixelPicture(int width, int height)
    : width(width), height(height), pixels(static_cast<std::size_t>(width) * height) {}

void PixelPicture::fill(const RECT& area, COLORREF color) {
    const std::uint32_t pixel = RGB(GetBValue(color), GetGValue(color), GetRValue(color));
    const int left = std::clamp<int>(area.left, 0, width);
    const int right = std::clamp<int>(area.right, left, width);
    const int bottom = std::min<int>(area.bottom, height);
    for (int row = std::max<int>(area.top, 0); row < bottom; ++row)
        std::fill_n(pixels.begin() + static_cast<std::ptrdiff_t>(row) * width + left, right - left, pixel);
}

void PixelPicture::show(HDC context) const {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height;  // the first row is the highest
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    ::SetDIBitsToDevice(context, 0, 0, width, height, 0, 0, 0, height, pixels.data(), &info, DIB_RGB_COLORS);
}
