#include "tests/driver/Pixel.h"

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

}  // namespace

Color PaintedPixel(HWND window, POINT screen) {
    EXPECT_TRUE(Eventually([window] { return IsPainted(window); }));
    // Twice, because the window may have been at its painting: what it has painted is on the screen when its
    // program waits for messages again.
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
