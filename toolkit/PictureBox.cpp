#include "toolkit/PictureBox.h"

#include "toolkit/Mouse.h"
#include "toolkit/Painting.h"

void PictureBox::setBackColor(COLORREF color) {
    if (back == color) return;
    back = color;
    ::InvalidateRect(handle(), nullptr, FALSE);
}

void PictureBox::setText(std::string_view text) {
    if (spoken == text) return;
    spoken = text;
    ::SetWindowTextA(handle(), spoken.c_str());
}

LRESULT PictureBox::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_ERASEBKGND: return TRUE;
        case WM_PAINT: {
            const Painting painting(handle());
            FillWithColor(painting.context(), painting.area(), backColor());
            return 0;
        }
        case WM_CAPTURECHANGED: MouseCaptureLost.raise(); return 0;
        default: break;
    }
    if (isUsable()) raiseMouse(message, wParam);
    return Control::onMessage(message, wParam, lParam);
}

void PictureBox::raiseMouse(UINT message, WPARAM wParam) const {
    if (message == WM_MOUSEMOVE) MouseMove.raise(HeldButtons(wParam));
    if (const int button = PressedButton(message)) MouseDown.raise(button);
    if (const int button = ReleasedButton(message)) MouseUp.raise(button);
}
