// Stands in for a program that ignores scaling: a window of two colours side by side, until it is ended. It
// has no manifest, so a system that scales such programs scales what it paints.
#include "tests/driver/TwoColors.h"

#include <array>
#include <cstdint>

#include "toolkit/platform/Platform.h"

namespace {

/// A colour of a window as bitmaps have it: 0x00RRGGBB.
constexpr std::uint32_t PixelOf(COLORREF color) {
    return static_cast<std::uint32_t>(GetRValue(color) << 16 | GetGValue(color) << 8 | GetBValue(color));
}

/// Two pixels, stretched in one go: of what is painted one after the other, a system that scales may mix the
/// first with what has been there before the second.
void Paint(HWND window) {
    constexpr std::array pixels = {PixelOf(two_colors::left), PixelOf(two_colors::right)};
    BITMAPINFO info{};
    info.bmiHeader = {sizeof info.bmiHeader, pixels.size(), 1, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    PAINTSTRUCT painting{};
    const HDC context = ::BeginPaint(window, &painting);
    ::StretchDIBits(context, 0, 0, two_colors::width, two_colors::height, 0, 0, pixels.size(), 1,
                    pixels.data(), &info, DIB_RGB_COLORS, SRCCOPY);
    ::EndPaint(window, &painting);
}

LRESULT CALLBACK Receive(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != WM_PAINT) return ::DefWindowProcA(window, message, wParam, lParam);
    Paint(window);
    return 0;
}

}  // namespace

int main() {
    const HINSTANCE instance = ::GetModuleHandleA(nullptr);
    WNDCLASSA windowClass{};
    windowClass.lpfnWndProc = Receive;
    windowClass.hInstance = instance;
    windowClass.lpszClassName = two_colors::className;
    ::RegisterClassA(&windowClass);
    const HWND window =
        ::CreateWindowExA(WS_EX_TOPMOST | WS_EX_TOOLWINDOW | WS_EX_NOACTIVATE, two_colors::className, "",
                          WS_POPUP, two_colors::place, two_colors::place, two_colors::width,
                          two_colors::height, nullptr, nullptr, instance, nullptr);
    ::ShowWindow(window, SW_SHOWNOACTIVATE);
    MSG message;
    while (::GetMessageW(&message, nullptr, 0, 0) > 0) ::DispatchMessageW(&message);
    return 0;
}
