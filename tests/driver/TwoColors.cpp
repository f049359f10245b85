// Stands in for a program that ignores scaling: a window of two colours side by side, until it is ended. It
// has no manifest, so a system that scales such programs scales what it paints.
#include "tests/driver/TwoColors.h"

#include "toolkit/platform/Platform.h"

namespace {

void Fill(HDC context, const RECT& area, COLORREF color) {
    const HBRUSH brush = ::CreateSolidBrush(color);
    ::FillRect(context, &area, brush);
    ::DeleteObject(brush);
}

void Paint(HWND window) {
    PAINTSTRUCT painting{};
    const HDC context = ::BeginPaint(window, &painting);
    Fill(context, {0, 0, two_colors::width / 2, two_colors::height}, two_colors::left);
    Fill(context, {two_colors::width / 2, 0, two_colors::width, two_colors::height}, two_colors::right);
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
