#include "toolkit/controls/FieldFrame.h"

#include "toolkit/platform/Platform.h"

namespace {

void Paint(HWND window, HDC context) {
    RECT area{};
    ::GetClientRect(window, &area);
    ::FillRect(context, &area, ::GetSysColorBrush(COLOR_3DSHADOW));
    ::InflateRect(&area, -1, -1);
    ::FillRect(context, &area, ::GetSysColorBrush(COLOR_WINDOW));
}

LRESULT CALLBACK FrameProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != WM_ERASEBKGND) return ::DefWindowProcW(window, message, wParam, lParam);
    Paint(window, reinterpret_cast<HDC>(wParam));
    return TRUE;
}

}  // namespace

void RegisterFieldFrame() {
    WNDCLASSW frame{};
    frame.lpfnWndProc = FrameProc;
    frame.hInstance = ::GetModuleHandleW(nullptr);
    frame.hCursor = ::LoadCursorW(nullptr, IDC_ARROW);
    frame.lpszClassName = L"FieldFrame";
    ::RegisterClassW(&frame);
}
